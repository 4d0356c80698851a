import QtQuick
import Tamble

// What can be done to the pages that are selected.
Column {
    id: root

    readonly property bool some: App.pages.selectedCount > 0
    readonly property bool all: some && App.pages.selectedCount === App.pages.count

    spacing: Theme.space3
    visible: App.document.state === DocumentModel.Ready

    Label { width: parent.width; kind: "strong"; text: App.pages.heading; wrapMode: Text.Wrap }
    Label { width: parent.width; quiet: true; text: App.pages.advice; wrapMode: Text.Wrap }

    Flow {
        width: parent.width
        spacing: Theme.space2
        visible: App.pages.isOrdering

        PushButton { sign: "ui.turn.left"; text: qsTr("Turn left"); enabled: root.some; onClicked: App.pages.turnSelected(-90) }
        PushButton { sign: "ui.turn.right"; text: qsTr("Turn right"); enabled: root.some; onClicked: App.pages.turnSelected(90) }
        PushButton {
            sign: App.pages.selectionIsLeftOut ? "ui.plus" : "ui.trash"
            text: App.pages.selectionIsLeftOut ? qsTr("Bring back") : qsTr("Leave out")
            enabled: root.some
            onClicked: App.pages.leaveOut()
        }
    }
    Flow {
        width: parent.width
        spacing: Theme.space2

        PushButton {
            kind: "quiet"
            leftPadding: 8
            text: root.all ? qsTr("Select none") : qsTr("Select all")
            onClicked: App.pages.selectAll(!root.all)
        }
        PushButton { kind: "quiet"; leftPadding: 8; sign: "ui.undo"; text: qsTr("Undo"); enabled: App.pages.canUndo; onClicked: App.pages.undo() }
        PushButton { kind: "quiet"; leftPadding: 8; text: qsTr("Start over"); visible: App.pages.isOrdering; enabled: App.pages.canReset; onClicked: App.pages.startOver() }
    }
    Label {
        width: parent.width
        quiet: true
        text: App.pages.isOrdering ? qsTr("With the keyboard: Alt and the arrows move pages, R turns them, Delete leaves them out.")
                                   : qsTr("At least one page has to stay.")
        visible: App.tool.editor !== "pageSelection"
        wrapMode: Text.Wrap
    }
}
