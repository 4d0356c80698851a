import QtQuick
import QtQuick.Templates as T
import Tamble

// The log of finished jobs.
Item {
    id: root

    property int margin: 36

    Header {
        id: header

        x: root.margin
        y: Math.min(28, root.margin)
        width: root.width - 2 * root.margin
        title: qsTr("Activity")
        subtitle: App.activity.count > 0 ? qsTr("Every job can be undone as long as its files are as it left them.") : ""
        back: App.navigator.canGoBack

        PushButton { visible: App.activity.count > 0; kind: "quiet"; text: qsTr("Clear List"); onClicked: question.open() }
    }

    Surface {
        anchors { left: header.left; right: header.right; top: header.bottom; topMargin: Theme.space5 }
        height: Math.min(list.contentHeight, root.height - y - root.margin)
        visible: App.activity.count > 0

        ListView {
            id: list

            anchors.fill: parent
            clip: true
            model: App.activity
            reuseItems: true
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ScrollLine {}

            delegate: ActivityRow { width: list.width; height: 72 }
        }
    }

    EmptyState {
        anchors.centerIn: parent
        width: Math.min(420, root.width - 2 * root.margin)
        visible: App.activity.isLoaded && App.activity.count === 0
        heading: qsTr("Nothing yet")
        text: qsTr("Finished jobs will show up here.")
    }

    Question {
        id: question

        heading: qsTr("Clear the list?")
        explanation: qsTr("The jobs are forgotten and can't be undone any more. Your files stay as they are.")
        yes: qsTr("Clear List")
        no: qsTr("Keep it")
        onAgreed: App.activity.clear()
    }
}
