import QtQuick
import Tamble

Scroller {
    id: root

    property int margin: 36

    contentHeight: column.height + 2 * margin

    Column {
        id: column

        x: LayoutMirroring.enabled ? root.width - width - root.margin : root.margin
        y: Math.min(28, root.margin)
        width: Math.min(760, root.width - 2 * root.margin)
        spacing: Theme.space5

        Header { width: parent.width; title: qsTr("Settings"); back: App.navigator.canGoBack }

        Chip { anchors.left: parent.left; visible: App.preferences.problem; text: App.preferences.problem }

        SettingsGroup {
            width: parent.width
            heading: qsTr("Appearance")

            Segments {
                anchors.left: parent.left
                width: Math.min(parent.width, 360)
                options: [{ "label": qsTr("System") }, { "label": qsTr("Light") }, { "label": qsTr("Dark") }]
                current: App.preferences.appearance
                onPicked: index => App.preferences.appearance = index
            }
        }
        SettingsGroup {
            width: parent.width
            heading: qsTr("Where new files go")

            SaveDefaultsForm { width: parent.width; title: qsTr("When whole folders were dropped"); defaults: App.preferences.folders }
            Divider { width: parent.width }
            SaveDefaultsForm {
                width: parent.width
                title: qsTr("When single files were dropped")
                note: qsTr("Single files → Downloads › Tamble › today's date")
                defaults: App.preferences.looseFiles
            }
            Divider { width: parent.width }
            Toggle {
                width: parent.width
                text: qsTr("Remember what I choose for a job")
                description: qsTr("The next job then starts with it.")
                on: App.preferences.rememberFolderChoice
                onSwitched: on => App.preferences.rememberFolderChoice = on
            }
        }
        SettingsGroup {
            width: parent.width
            heading: qsTr("Work")

            Row {
                width: parent.width
                spacing: Theme.space3

                Chooser {
                    id: atOnce

                    hint: qsTr("How many files at once")
                    model: [qsTr("Automatic")].concat(Array.from({ length: App.preferences.mostAtOnce }, (_, index) => (index + 1).toString()))
                    currentIndex: App.preferences.atOnce
                    onActivated: index => App.preferences.atOnce = index
                }
                Label { width: parent.width - atOnce.width - 12; anchors.verticalCenter: parent.verticalCenter; quiet: true; text: qsTr("How many files are worked on at the same time"); wrapMode: Text.Wrap }
            }
            Toggle {
                width: parent.width
                text: qsTr("Tell me when a job is done")
                description: qsTr("With a notification, if the window isn't in front.")
                on: App.preferences.notifyWhenDone
                onSwitched: on => App.preferences.notifyWhenDone = on
            }
        }
        SettingsGroup {
            width: parent.width
            heading: qsTr("Advanced")

            PathSetting {
                width: parent.width
                title: qsTr("Model for cutting out subjects")
                path: App.preferences.subjectModel
                usual: qsTr("The usual one")
                note: qsTr("Takes effect at the next start.")
                onChosen: url => App.preferences.setSubjectModel(url)
            }
        }
    }
}
