import QtQuick
import Tamble

Scroller {
    id: root

    property int margin: 36

    readonly property var titles: ({
        "": qsTr("All tools"), "video": qsTr("Video"), "audio": qsTr("Sound"), "images": qsTr("Photos"),
        "pdf": qsTr("PDF"), "smart": qsTr("Smart"), "files": qsTr("Files")
    })
    readonly property var subtitles: ({
        "": qsTr("Pick one, then drop your files on it."),
        "video": qsTr("Shorten, shrink, convert."), "audio": qsTr("Record, trim, convert."),
        "images": qsTr("Convert, shrink, turn, clean."), "pdf": qsTr("Combine, split, sign, lock."),
        "smart": qsTr("Text from pictures, sound and long documents."), "files": qsTr("Names for many files at once.")
    })

    contentHeight: column.height + 2 * margin

    Column {
        id: column

        x: root.margin
        y: Math.min(28, root.margin)
        width: root.width - 2 * root.margin
        spacing: Theme.space5

        Header {
            width: parent.width
            title: root.titles[App.navigator.category]
            subtitle: root.subtitles[App.navigator.category]
            symbol: App.navigator.category ? "category." + App.navigator.category : ""
            category: App.navigator.category
        }
        ToolGrid { width: parent.width; model: App.categoryTools }
    }
}
