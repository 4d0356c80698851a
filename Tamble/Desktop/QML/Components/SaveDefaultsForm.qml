import QtQuick
import Tamble

// One of the two remembered sets of where to save.
Column {
    id: root

    property string title
    property string note
    property SaveDefaults defaults

    spacing: Theme.space3

    Label { width: parent.width; kind: "strong"; text: root.title; wrapMode: Text.Wrap }
    Segments {
        width: parent.width
        options: [{ "label": qsTr("Next to each original") }, { "label": qsTr("In one folder") }, { "label": qsTr("In place of originals") }]
        current: root.defaults.mode
        onPicked: index => root.defaults.mode = index
    }
    Column {
        width: parent.width
        visible: root.defaults.mode === 1
        spacing: Theme.space2

        Flow {
            width: parent.width
            spacing: Theme.space2

            PushButton { width: Math.min(implicitWidth, root.width); elide: Text.ElideMiddle; sign: "ui.folder"; text: root.defaults.folder; onClicked: App.choose("folder", "", urls => root.defaults.chooseFolder(urls[0])) }
            PushButton { kind: "quiet"; text: qsTr("Use Downloads"); onClicked: root.defaults.forgetFolder() }
        }
        Toggle { width: parent.width; text: qsTr("A folder for each day"); on: root.defaults.addDateFolder; onSwitched: on => root.defaults.addDateFolder = on }
        Toggle { width: parent.width; text: qsTr("Keep the folders as they were"); on: root.defaults.keepStructure; onSwitched: on => root.defaults.keepStructure = on }
    }
    Flow {
        width: parent.width
        spacing: Theme.space3

        Label { height: Theme.control; quiet: true; text: qsTr("If the name is taken") }
        Chooser {
            model: [qsTr("Add a number"), qsTr("Skip the file"), qsTr("Replace, old one to the Bin")]
            hint: qsTr("If the name is taken")
            currentIndex: root.defaults.clash
            onActivated: index => root.defaults.clash = index
        }
    }
    Label { width: parent.width; quiet: true; text: root.defaults.example; wrapMode: Text.Wrap }
    Label { width: parent.width; visible: text && root.defaults.mode === 1; quiet: true; text: root.note; wrapMode: Text.Wrap }
}
