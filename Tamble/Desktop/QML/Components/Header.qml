import QtQuick
import Tamble

// The top of a screen: the way back, what the screen is about, and what can be done at its end.
Item {
    id: root

    property string title
    property string subtitle
    property string symbol
    property string category
    property bool back: true
    default property alias actions: end.data

    implicitHeight: Math.max(44, titles.implicitHeight)

    IconButton {
        id: backButton

        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        visible: root.back
        framed: true
        sign: "ui.back"
        text: qsTr("Back")
        onClicked: App.navigator.back()
    }
    Tile {
        id: tile

        anchors { verticalCenter: parent.verticalCenter; left: backButton.visible ? backButton.right : parent.left; leftMargin: backButton.visible ? 14 : 0 }
        visible: root.symbol
        symbol: root.symbol
        category: root.category
    }
    Column {
        id: titles

        anchors {
            verticalCenter: parent.verticalCenter
            left: tile.visible ? tile.right : backButton.visible ? backButton.right : parent.left
            leftMargin: tile.visible || backButton.visible ? 14 : 0
            right: end.left; rightMargin: Theme.space4
        }

        Label { width: parent.width; kind: root.symbol ? "heading" : "title"; text: root.title; elide: Text.ElideRight }
        Label { width: parent.width; visible: text; quiet: true; text: root.subtitle; wrapMode: Text.Wrap; elide: Text.ElideRight; maximumLineCount: 2 }
    }
    Row {
        id: end

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: Theme.space2
    }
}
