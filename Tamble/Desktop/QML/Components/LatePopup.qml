import QtQuick
import Tamble

// A popup that is made when it is first opened.
Loader {
    readonly property bool opened: item !== null && item.opened

    function open() {
        active = true
        item.open()
    }

    active: false
}
