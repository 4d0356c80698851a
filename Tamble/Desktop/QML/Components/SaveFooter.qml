import QtQuick
import Tamble

// Where the new files go, what to expect, and the button that starts the job.
Rectangle {
    id: root

    property int margin: 36

    readonly property SaveModel save: App.tool.save
    readonly property bool tight: width < 860
    readonly property string namesProblem: App.tool.editor !== "names" || App.tool.files.count === 0 ? "" : App.names.obstacle
    readonly property bool canStart: App.tool.canStart && !namesProblem

    height: content.height + 28
    color: Theme.surface

    Divider { width: parent.width }

    Item {
        id: content

        x: root.margin
        y: 14
        width: root.width - 2 * root.margin
        height: root.tight ? choices.height + outcome.height + 10 : Math.max(choices.height, outcome.height)

        Column {
            id: choices

            anchors.left: parent.left
            width: root.tight ? parent.width : parent.width - outcome.width - 24
            spacing: 6

            Flow {
                width: parent.width
                spacing: Theme.space2

                Segments {
                    visible: root.save.renames
                    stretch: false
                    options: [{ "label": qsTr("Rename the files") }, { "label": qsTr("Make renamed copies") }]
                    current: root.save.renamesCopies ? 1 : 0
                    onPicked: index => root.save.renamesCopies = index === 1
                }
                Segments {
                    visible: !root.save.renames || root.save.renamesCopies
                    stretch: false
                    options: root.save.canReplace
                        ? [{ "label": qsTr("Next to each original") }, { "label": qsTr("In one folder") }, { "label": qsTr("In place of originals") }]
                        : [{ "label": qsTr("Next to each original") }, { "label": qsTr("In one folder") }]
                    current: root.save.mode === SaveModel.Replace && !root.save.canReplace ? 0 : root.save.mode
                    onPicked: index => root.save.mode = index
                }
                PushButton {
                    visible: root.save.mode === SaveModel.OneFolder && (!root.save.renames || root.save.renamesCopies)
                    width: Math.min(implicitWidth, 300)
                    elide: Text.ElideMiddle
                    sign: "ui.folder"
                    text: root.save.folder
                    Accessible.description: qsTr("Choose a folder")
                    onClicked: App.choose("folder", root.save.folderUrl, urls => root.save.chooseFolder(urls[0]))
                }
                Chooser {
                    visible: !root.save.renames || root.save.renamesCopies
                    hint: qsTr("If the name is taken")
                    model: [qsTr("Add a number"), qsTr("Skip the file"), qsTr("Replace the old one")]
                    currentIndex: root.save.clash
                    onActivated: index => root.save.clash = index
                }
            }
            Label {
                width: parent.width
                quiet: true
                text: root.save.mode === SaveModel.Replace && root.save.canReplace && !root.save.renames
                      ? qsTr("%1 · The originals go to the Bin.").arg(App.tool.forecast.example) : App.tool.forecast.example || root.save.wayText
                elide: Text.ElideMiddle
            }
        }
        Row {
            id: outcome

            anchors { right: parent.right; bottom: parent.bottom }
            spacing: 20

            Column {
                anchors.verticalCenter: parent.verticalCenter

                Label { anchors.right: parent.right; visible: text; text: App.tool.missing ? "" : App.tool.forecast.size; font.weight: Font.DemiBold }
                Label { anchors.right: parent.right; visible: text && !App.tool.missing; quiet: true; text: App.tool.forecast.change }
                Label {
                    anchors.right: parent.right
                    width: Math.min(implicitWidth, 240)
                    visible: text
                    color: Theme.warn
                    text: App.pages.missing || App.tool.missing || root.namesProblem
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignRight
                }
            }
            PushButton {
                kind: "main"
                big: true
                enabled: root.canStart
                text: App.tool.startText
                onClicked: App.startJob()
            }
        }
    }

    Shortcut { sequence: "Ctrl+Return"; enabled: root.canStart; onActivated: App.startJob() }
}
