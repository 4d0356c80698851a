import QtQuick
import Tamble

// The figure that waits for files, catches them, works, and tells how it went. It is laid together from pictures on
// one 200 × 200 grid: shapes drawn by the graphics card would have ragged edges.
Item {
    id: root

    property string expression: "waiting" // waiting, catching, working, happy, sorry
    property real size: 190
    property bool moving: true
    property string content: "none" // none, files

    readonly property bool open: expression === "catching"
    readonly property bool working: expression === "working"
    readonly property real part: working ? 0.9 : 1 // leaves room for the lines of speed

    component Part: Image {
        property string name

        anchors.fill: parent
        source: name && width > 0 ? "mascot/" + name + ".svg" : ""
        sourceSize.width: Math.ceil(width)
        sourceSize.height: Math.ceil(height)
    }

    implicitWidth: size
    implicitHeight: size
    width: size
    height: size
    Accessible.ignored: true

    MascotMotion {
        id: motion

        expression: root.expression
        active: root.moving && root.visible && root.Window.visibility !== Window.Hidden
                && root.Window.visibility !== Window.Minimized
    }

    Part {
        name: "shadow"
        scale: 1 - 2 * motion.lift
        transformOrigin: Item.Bottom
    }

    Part {
        name: root.working ? "speed" : ""
        opacity: Math.sin(Math.PI * motion.wind)
        transform: Translate { x: -0.06 * root.size * (motion.wind - 0.5) }
    }

    Item {
        id: figure

        anchors.fill: parent
        transform: [
            Scale {
                origin.x: root.size * 0.5
                origin.y: root.size * 0.95
                xScale: (2 - motion.stretch) * root.part
                yScale: motion.stretch * root.part
            },
            Rotation {
                origin.x: root.size * 0.5
                origin.y: root.size * 0.55
                angle: motion.lean
            },
            Translate {
                x: root.working ? root.size * (0.05 + 0.004 * motion.lean) : 0
                y: -root.size * motion.lift
            }
        ]

        Part { name: "body" }
        Part { name: root.open ? "pocket-inside" : "" }
        Part { name: root.content === "files" ? "files" : "" }
        Part { name: root.open ? "pocket-open" : "pocket" }
        Part { name: "arms-" + root.expression }
        Part { name: "mouth-" + root.expression }
        Part {
            name: "eyes-" + root.expression
            transform: Scale {
                origin.y: root.size * 0.39
                yScale: motion.lids
            }
        }
    }
}
