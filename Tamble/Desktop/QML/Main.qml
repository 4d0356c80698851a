import QtQuick
import QtQuick.Templates as T
import Tamble

T.ApplicationWindow {
    id: root

    readonly property bool narrow: width < 980
    readonly property int margin: width < 900 ? 20 : 36

    visible: true
    width: App.windowSize.width
    height: App.windowSize.height
    minimumWidth: 720
    minimumHeight: 520
    title: "Tamble"
    color: Theme.paper
    font { family: Theme.family; pixelSize: Theme.bodySize }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    onClosing: close => {
        App.rememberWindow(width, height, visibility === Window.Maximized)
        if (App.job.isRunning) {
            close.accepted = false
            quitGuard.open()
        }
    }

    Sidebar {
        id: sidebar

        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        narrow: root.narrow
        onSearchRequested: search.open()
    }

    ScreenStack {
        id: screens

        anchors { left: sidebar.right; right: parent.right; top: parent.top; bottom: parent.bottom }
        margin: root.margin
    }

    DropCatcher {
        anchors.fill: parent
    }

    FileChooser {}

    LatePopup {
        id: search

        sourceComponent: QuickSearchPopup {}
    }

    Toast {
        id: toast

        property string undoID

        anchors { horizontalCenter: screens.horizontalCenter; bottom: parent.bottom; bottomMargin: 96 }
        onAction: App.activity.undo(undoID)
    }

    LatePopup {
        id: quitGuard

        sourceComponent: Question {
            mood: "working"
            heading: qsTr("A job is still running")
            explanation: qsTr("If you quit now, it stops and nothing is saved. If it has already started saving, Tamble finishes that first, then quits.")
            yes: qsTr("Quit")
            no: qsTr("Keep working")
            onAgreed: App.quitAfterJob()
        }
    }

    Connections {
        target: App
        function onSaid(sentence) { toast.say(sentence) }
        function onRaiseRequested() {
            root.show()
            root.raise()
            root.requestActivate()
        }
    }
    Connections {
        target: App.activity
        function onUndone(id, report) {
            // The screen of the job says so itself.
            if (App.navigator.screen !== Navigator.Done)
                toast.say(report)
        }
        function onInterrupted(sentence, id) {
            toast.undoID = id
            interruption.sentences = interruption.sentences.concat([{ "text": sentence, "id": id }])
        }
    }

    // What jobs left behind whose program died: each stays until it is answered.
    LatePopup {
        id: interruption

        property var sentences: []

        // The next one is asked about once this one is closed.
        function next() { Qt.callLater(() => sentences = sentences.slice(1)) }

        onSentencesChanged: if (sentences.length > 0 && !opened) open()
        sourceComponent: Question {
            readonly property var first: interruption.sentences[0] ?? null
            readonly property bool canUndo: first !== null && first.id !== ""

            mood: "sorry"
            heading: qsTr("A job was interrupted")
            explanation: first ? first.text : ""
            yes: canUndo ? qsTr("Put everything back") : qsTr("All right")
            no: canUndo ? qsTr("Leave it as it is") : qsTr("Show activity")
            onAgreed: { if (canUndo) App.activity.undo(first.id); interruption.next() }
            onRefused: { if (!canUndo) App.navigator.open(Navigator.Activity); interruption.next() }
        }
    }

    Shortcut { sequences: ["Ctrl+K", "Ctrl+Alt+Z"]; enabled: !App.job.isRunning; onActivated: search.open() }
    Shortcut { sequences: [StandardKey.Paste]; enabled: !search.opened; onActivated: App.paste() }
    Shortcut { sequences: [StandardKey.Quit]; onActivated: root.close() }
    Shortcut { sequences: [StandardKey.Open]; onActivated: App.choose("files", "", urls => App.take(urls)) }
    Shortcut { sequences: [StandardKey.Back]; enabled: !App.job.isRunning; onActivated: App.navigator.back() }
    Shortcut { sequences: [StandardKey.Preferences, "Ctrl+,"]; enabled: !App.job.isRunning; onActivated: App.navigator.open(Navigator.Settings) }
}
