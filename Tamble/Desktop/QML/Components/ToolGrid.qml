import QtQuick
import Tamble

// Cards of tools, as many beside each other as there is room for.
Grid {
    id: root

    property alias model: repeater.model
    property bool large: false
    property int most: 3
    readonly property int narrowest: large ? 330 : 250

    columns: Math.max(1, Math.min(most, Math.floor((width + spacing) / (narrowest + spacing))))
    spacing: 14

    Repeater {
        id: repeater

        ToolCard {
            width: (root.width - (root.columns - 1) * root.spacing) / root.columns
            large: root.large
        }
    }
}
