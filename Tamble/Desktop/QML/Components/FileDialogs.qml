import QtQuick
import QtQuick.Dialogs
import Tamble

// One question for files or a folder.
QtObject {
    id: root

    property string kind
    property var take
    property url start

    function open() {
        const dialog = kind === "folder" ? folderDialog : fileDialog
        dialog.open()
    }

    property FileDialog fileDialog: FileDialog {
        title: root.kind === "files" ? qsTr("Add files") : qsTr("Choose a file")
        fileMode: root.kind === "files" ? FileDialog.OpenFiles : FileDialog.OpenFile
        onAccepted: root.take(selectedFiles)
    }
    property FolderDialog folderDialog: FolderDialog {
        title: qsTr("Choose a folder")
        onAccepted: root.take([selectedFolder])
    }
}
