import QtQuick
import QtQuick.Templates as T
import Tamble

// Asks before something is done: a heading, an explanation, and what can be answered.
T.Popup {
    id: root

    property string heading
    property string explanation
    property string yes
    property string no
    property string mood: "waiting"
    signal agreed()
    signal refused()

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: parent ? Math.min(460, parent.width - 48) : 460
    padding: 24
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onClosed: if (!answered) refused()
    onOpened: { answered = false; noButton.forceActiveFocus(Qt.TabFocusReason) }

    property bool answered: false

    T.Overlay.modal: Rectangle { color: Theme.scrim }

    contentItem: Column {
        spacing: Theme.space4
        Accessible.role: Accessible.Dialog
        Accessible.name: root.heading

        Row {
            width: parent.width
            spacing: Theme.space4

            Mascot { id: mascot; expression: root.mood; size: 72; moving: false }
            Column {
                width: parent.width - mascot.width - parent.spacing
                spacing: Theme.space2

                Label { width: parent.width; kind: "heading"; text: root.heading; wrapMode: Text.Wrap }
                Label { width: parent.width; quiet: true; text: root.explanation; wrapMode: Text.Wrap }
            }
        }
        Flow {
            width: parent.width
            spacing: Theme.space3
            layoutDirection: Qt.RightToLeft

            PushButton {
                kind: "main"
                text: root.yes
                onClicked: { root.answered = true; root.close(); root.agreed() }
            }
            PushButton {
                id: noButton

                text: root.no
                onClicked: { root.answered = true; root.close(); root.refused() }
            }
        }
    }

    background: Surface { radius: 20 }

    enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.calm } }
    exit: Transition { NumberAnimation { property: "opacity"; to: 0; duration: Theme.quick } }
}
