import QtQuick
import QtQuick.Dialogs

// Asks for "files", a "file" or a "folder".
Item {
    id: root

    signal chosen(var urls)

    property bool wasAsked: false

    function ask(kind, start) {
        if (kind === "folder") {
            folderDialog.currentFolder = start
            folderDialog.open()
        } else {
            // Later they begin where the last files were.
            if (!wasAsked)
                fileDialog.currentFolder = start
            wasAsked = true
            fileDialog.fileMode = kind === "files" ? FileDialog.OpenFiles : FileDialog.OpenFile
            fileDialog.open()
        }
    }

    FileDialog {
        id: fileDialog

        title: fileMode === FileDialog.OpenFiles ? qsTr("Add files") : qsTr("Choose a file")
        onAccepted: root.chosen(selectedFiles)
    }
    FolderDialog {
        id: folderDialog

        title: qsTr("Choose a folder")
        onAccepted: root.chosen([selectedFolder])
    }
}
