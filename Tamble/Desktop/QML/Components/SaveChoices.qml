import QtQuick
import Tamble

// Where the new files go, and what happens to a name that is taken.
Flow {
    id: root

    readonly property SaveModel save: App.tool.save
    readonly property bool makesFiles: !save.renames || save.renamesCopies

    spacing: Theme.space2

    Segments {
        visible: root.save.renames
        width: Math.min(implicitWidth, parent.width)
        stretch: false
        options: [{ "label": qsTr("Rename the files") }, { "label": qsTr("Make renamed copies") }]
        current: root.save.renamesCopies ? 1 : 0
        onPicked: index => root.save.renamesCopies = index === 1
    }
    Segments {
        visible: root.makesFiles
        width: Math.min(implicitWidth, parent.width)
        stretch: false
        options: root.save.canReplace
            ? [{ "label": qsTr("Next to each original") }, { "label": qsTr("In one folder") }, { "label": qsTr("In place of originals") }]
            : [{ "label": qsTr("Next to each original") }, { "label": qsTr("In one folder") }]
        current: root.save.mode === SaveModel.Replace && !root.save.canReplace ? 0 : root.save.mode
        onPicked: index => root.save.mode = index
    }
    PushButton {
        visible: root.save.mode === SaveModel.OneFolder && root.makesFiles
        width: Math.min(implicitWidth, 300)
        elide: Text.ElideMiddle
        sign: "ui.folder"
        text: root.save.folder
        Accessible.description: qsTr("Choose a folder")
        onClicked: App.choose("folder", root.save.folderUrl, urls => root.save.chooseFolder(urls[0]))
    }
    Chooser {
        visible: root.makesFiles
        hint: qsTr("If the name is taken")
        model: [qsTr("Add a number"), qsTr("Skip the file"), qsTr("Replace the old one")]
        currentIndex: root.save.clash
        onActivated: index => root.save.clash = index
    }
}
