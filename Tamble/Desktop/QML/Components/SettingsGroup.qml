import QtQuick
import Tamble

Column {
    id: root

    property string heading
    default property alias content: inner.data

    spacing: Theme.space3

    Label { width: parent.width; kind: "heading"; text: root.heading; wrapMode: Text.Wrap }
    Surface {
        width: parent.width
        height: inner.height + 2 * Theme.space4

        Column {
            id: inner

            x: Theme.space4
            y: Theme.space4
            width: parent.width - 2 * Theme.space4
            spacing: Theme.space4
        }
    }
}
