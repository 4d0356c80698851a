import QtQuick
import Tamble

// A calm view of the job that runs.
Item {
    id: root

    property int margin: 36

    Column {
        anchors.centerIn: parent
        width: Math.min(560, root.width - 2 * root.margin)
        spacing: 22

        Mascot {
            anchors.horizontalCenter: parent.horizontalCenter
            expression: "working"
            content: "files"
            size: Math.min(190, root.height * 0.3)
            moving: Theme.moves
        }
        Column {
            width: parent.width
            spacing: Theme.space1

            Label { width: parent.width; kind: "title"; text: App.job.headline; horizontalAlignment: Text.AlignHCenter; wrapMode: Text.Wrap }
            Label {
                width: parent.width
                kind: "strong"
                quiet: true
                text: App.job.position
                font.weight: Font.Normal
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideMiddle
            }
        }
        ProgressLine { width: parent.width; value: App.job.fraction }
        Item {
            width: parent.width
            height: counts.height

            Label { id: counts; anchors.left: parent.left; quiet: true; text: App.job.counts }
            Label { anchors.right: parent.right; quiet: true; text: App.job.timeLeft }
        }
        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            big: true
            enabled: !App.job.isSaving && !App.job.isStopping
            text: App.job.isStopping ? qsTr("Stopping…") : qsTr("Cancel")
            onClicked: App.job.cancel()
            Component.onCompleted: forceActiveFocus(Qt.OtherFocusReason)
            Keys.onEscapePressed: App.job.cancel()
        }
        Label {
            width: parent.width
            quiet: true
            text: App.job.isSaving ? qsTr("Saving can't be interrupted, so that nothing is left half done.") : qsTr("Nothing is saved before everything is ready.")
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
