import QtQuick
import Tamble

// Stands in for the pages of a PDF that is being opened, wants a password, or cannot be opened.
Item {
    id: root

    readonly property bool locked: App.document.state === DocumentModel.Locked

    visible: App.document.state !== DocumentModel.Ready

    Timer {
        id: patience

        interval: 400
        running: App.document.state === DocumentModel.Opening
    }

    Column {
        anchors.centerIn: parent
        width: Math.min(360, parent.width - 2 * Theme.space4)
        spacing: Theme.space4
        visible: App.document.state !== DocumentModel.Nothing && !patience.running

        EmptyState {
            width: parent.width
            size: Math.min(128, root.height * 0.36)
            mood: root.locked ? "waiting" : App.document.state === DocumentModel.Failed ? "sorry" : "working"
            heading: root.locked ? qsTr("This PDF is locked") : App.document.state === DocumentModel.Failed ? qsTr("This PDF can't be shown") : qsTr("Opening the PDF…")
            text: App.document.sentence
        }
        TextBox {
            id: password

            width: parent.width
            visible: root.locked
            secret: true
            placeholderText: qsTr("Password")
            Accessible.name: qsTr("Password of the PDF")
            onAccepted: if (length) App.document.unlock(text)
            onVisibleChanged: if (visible) forceActiveFocus()
        }
        PushButton {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.locked
            kind: "main"
            text: qsTr("Open the PDF")
            enabled: password.length > 0
            onClicked: App.document.unlock(password.text)
        }
    }
}
