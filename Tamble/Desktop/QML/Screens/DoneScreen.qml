import QtQuick
import Tamble

// What became of the job.
Scroller {
    id: root

    property int margin: 36

    readonly property bool undoing: App.result.activityID && state_.count >= 0 && App.activity.isUndoneOrUndoing(App.result.activityID)
    readonly property bool undone: undoing && state_.count >= 0 && !App.activity.isBeingUndone(App.result.activityID)

    contentHeight: column.height + 2 * margin

    QtObject {
        id: state_

        property int count: 0
    }
    Connections {
        target: App.activity
        function onDataChanged() { ++state_.count }
        function onCountChanged() { ++state_.count }
    }

    Column {
        id: column

        x: root.margin
        y: Math.min(44, root.margin)
        width: root.width - 2 * root.margin
        spacing: 22

        Item {
            width: parent.width
            height: Math.max(mascot.height, texts.implicitHeight)

            Mascot {
                id: mascot

                anchors.left: parent.left
                size: root.width < 700 ? 96 : 128
                expression: root.undone ? "waiting" : App.result.mood
                content: root.undone ? "none" : "files"
                moving: Theme.moves
            }
            Column {
                id: texts

                anchors { left: mascot.right; leftMargin: 28; right: parent.right; verticalCenter: parent.verticalCenter }
                spacing: Theme.space1

                Label { width: parent.width; kind: "title"; text: root.undone ? qsTr("Undone") : App.result.title; wrapMode: Text.Wrap }
                Label {
                    width: parent.width
                    kind: "strong"
                    quiet: true
                    font.weight: Font.Normal
                    text: root.undone ? (state_.count >= 0 ? App.activity.reportOf(App.result.activityID) : "") : App.result.subtitle
                    wrapMode: Text.Wrap
                }
                Item { width: 1; height: 8 }
                Flow {
                    width: parent.width
                    spacing: Theme.space3

                    PushButton { visible: App.result.hasOutputs && !root.undone; kind: "main"; big: true; text: qsTr("Show in folder"); onClicked: App.showResults() }
                    PushButton { visible: App.result.hasOutputs && !root.undone; big: true; text: qsTr("Use for another tool"); onClicked: App.useResults() }
                    PushButton {
                        visible: App.result.activityID
                        enabled: !root.undoing
                        big: true
                        kind: "quiet"
                        sign: "ui.undo"
                        text: root.undone ? qsTr("Undone") : root.undoing ? qsTr("Undoing…") : qsTr("Undo")
                        Accessible.description: qsTr("Remove the new files and put the originals back")
                        onClicked: App.activity.undo(App.result.activityID)
                    }
                    PushButton { visible: !App.result.hasOutputs || root.undone; kind: "main"; big: true; text: qsTr("Back to the tool"); onClicked: App.navigator.back() }
                    PushButton { big: true; kind: "quiet"; text: qsTr("Start over"); onClicked: App.startOver() }
                }
            }
        }

        ResultList {
            width: parent.width
            visible: model.count > 0 && !root.undone
            heading: qsTr("Couldn't be done")
            action: qsTr("Try these again")
            model: App.result.failures
            onActed: App.tryAgain()
        }
        ResultList {
            width: parent.width
            visible: model.count > 0 && !root.undone
            heading: qsTr("Good to know")
            model: App.result.notes
        }
        ResultList {
            width: parent.width
            visible: model.count > 1 && !root.undone
            heading: qsTr("Folders")
            folders: true
            model: App.result.folders
        }
    }
}
