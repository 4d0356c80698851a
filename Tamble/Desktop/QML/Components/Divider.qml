import QtQuick
import Tamble

Rectangle {
    implicitHeight: 1
    color: Theme.line
}
