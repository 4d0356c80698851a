import QtQuick
import Tamble

// What is behind a see-through picture.
Image {
    source: "checkers.svg"
    sourceSize: Qt.size(24, 24)
    fillMode: Image.Tile
    horizontalAlignment: Image.AlignLeft
    verticalAlignment: Image.AlignTop
    Accessible.ignored: true
}
