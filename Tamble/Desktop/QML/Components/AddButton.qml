import QtQuick
import QtQuick.Templates as T
import Tamble

// Adds files or a folder.
PushButton {
    id: root

    text: qsTr("Add more…")
    sign: "ui.plus"
    onClicked: menu.open()

    T.Menu {
        id: menu

        y: root.height + 4
        x: root.mirrored ? 0 : root.width - width
        implicitWidth: 190
        implicitHeight: contentItem.contentHeight + 12
        padding: 6

        contentItem: ListView { model: menu.contentModel; implicitHeight: contentHeight; currentIndex: menu.currentIndex }
        background: Surface { radius: 12; border { width: 1; color: Theme.line } }

        MenuEntry { text: qsTr("Add files…"); sign: "ui.file"; onTriggered: App.choose("files", "", urls => App.take(urls)) }
        MenuEntry { text: qsTr("Add folder…"); sign: "ui.folder"; onTriggered: App.choose("folder", "", urls => App.take(urls)) }
    }
}
