import QtQuick
import Tamble

// Where the new files go, what to expect, and the button that starts the job.
Rectangle {
    id: root

    property int margin: 36

    readonly property SaveModel save: App.tool.save
    readonly property bool tight: width < 860
    readonly property string namesProblem: App.tool.editor !== "names" || App.tool.files.count === 0 ? "" : App.names.obstacle
    readonly property string missing: App.pages.missing || App.tool.missing || namesProblem
    readonly property bool canStart: App.tool.canStart && !namesProblem
    readonly property string example: save.mode === SaveModel.Replace && save.canReplace && !save.renames && App.tool.forecast.example
        ? qsTr("%1 · The originals go to the Bin.").arg(App.tool.forecast.example) : App.tool.forecast.example || save.wayText

    height: content.height + 28
    color: Theme.surface

    Divider { width: parent.width }
    TextMetrics {
        id: measure

        font: size.font
        text: size.text.length > change.text.length ? size.text : change.text
    }

    Item {
        id: content

        x: root.margin
        y: 14
        width: root.width - 2 * root.margin
        height: root.tight ? choices.height + 10 + Math.max(start.height, facts.height)
                           : Math.max(choices.height + 6 + wide.height, start.height, facts.height)

        SaveChoices {
            id: choices

            anchors.left: parent.left
            width: root.tight ? parent.width : parent.width - start.width - facts.width - 44
        }
        Label {
            id: wide

            anchors { left: parent.left; top: choices.bottom; topMargin: 6 }
            width: choices.width
            visible: !root.tight
            quiet: true
            text: root.example
            elide: Text.ElideMiddle
        }
        Column {
            id: facts

            readonly property int side: root.tight ? Text.AlignLeft : Text.AlignRight

            anchors { right: start.left; rightMargin: 20; verticalCenter: start.verticalCenter }
            width: root.tight ? parent.width - start.width - 20
                              : root.missing ? 220 : Math.ceil(measure.advanceWidth) + 2

            Label {
                width: parent.width
                visible: root.tight && text
                quiet: true
                text: root.example
                wrapMode: App.tool.forecast.example ? Text.NoWrap : Text.Wrap
                elide: App.tool.forecast.example ? Text.ElideMiddle : Text.ElideNone
            }
            Label {
                id: size

                width: parent.width
                visible: text && !root.missing
                text: App.tool.forecast.size
                font.weight: Font.DemiBold
                horizontalAlignment: facts.side
            }
            Label {
                id: change

                width: parent.width
                visible: text && !root.missing && !root.tight
                quiet: true
                text: App.tool.forecast.change
                horizontalAlignment: facts.side
            }
            Label {
                id: missing

                width: parent.width
                visible: text
                color: Theme.warn
                text: root.missing
                horizontalAlignment: facts.side
                wrapMode: Text.Wrap
            }
        }
        PushButton {
            id: start

            anchors { right: parent.right; bottom: parent.bottom }
            kind: "main"
            big: true
            enabled: root.canStart
            text: App.tool.startText
            onClicked: App.startJob()
        }
    }

    Shortcut { sequence: "Ctrl+Return"; enabled: root.canStart; onActivated: App.startJob() }
}
