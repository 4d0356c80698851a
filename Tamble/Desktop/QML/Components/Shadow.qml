import QtQuick
import Tamble

// A soft shadow under its parent; stretched from one small picture, since blurring costs frames without a graphics card.
Item {
    property real radius: Theme.cardRadius
    property bool lifted: false

    anchors.fill: parent
    z: -1

    component Soft: BorderImage {
        property real blur
        property int drop
        property string ink

        x: -blur
        y: -blur + drop
        width: parent.width + 2 * blur
        height: parent.height + 2 * blur
        border { left: radius + 2 * blur; right: radius + 2 * blur; top: radius + 2 * blur; bottom: radius + 2 * blur }
        source: "image://shadow/" + radius + "/" + blur + "/" + ink + "/" + Screen.devicePixelRatio
    }

    Soft {
        blur: 9
        drop: 5
        ink: Theme.dark ? "00000048" : "32231412"
    }
    Soft {
        blur: 17
        drop: 11
        ink: Theme.dark ? "0000006C" : "32231421"
        opacity: parent.lifted ? 1 : 0
        visible: opacity > 0

        Behavior on opacity { NumberAnimation { duration: Theme.quick } }
    }
}
