import QtQuick
import QtQuick.Templates as T
import Tamble

// A page that scrolls when it is higher than its place.
Flickable {
    id: root

    contentWidth: width
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    T.ScrollBar.vertical: ScrollLine {}

    // A control that gets the keyboard comes into sight.
    function reveal(item) {
        const top = item.mapToItem(contentItem, 0, 0).y
        if (top < contentY + 8)
            contentY = Math.max(0, top - 24)
        else if (top + item.height > contentY + height - 8)
            contentY = Math.min(Math.max(0, contentHeight - height), top + item.height - height + 24)
    }

    Connections {
        target: root.Window.window
        function onActiveFocusItemChanged() {
            let item = root.Window.window.activeFocusItem
            for (let above = item; above; above = above.parent)
                if (above === root.contentItem)
                    return root.reveal(item)
        }
    }
}
