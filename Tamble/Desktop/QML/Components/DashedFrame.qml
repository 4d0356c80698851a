import QtQuick
import QtQuick.Shapes
import Tamble

// A dashed line with round corners.
Shape {
    id: root

    property real radius: 20

    opacity: 0.45

    ShapePath {
        strokeColor: Theme.brand
        strokeWidth: 2
        strokeStyle: ShapePath.DashLine
        dashPattern: [4, 4]
        fillColor: "transparent"
        startX: root.radius
        startY: 0

        PathLine { x: root.width - root.radius; y: 0 }
        PathArc { x: root.width; y: root.radius; radiusX: root.radius; radiusY: root.radius }
        PathLine { x: root.width; y: root.height - root.radius }
        PathArc { x: root.width - root.radius; y: root.height; radiusX: root.radius; radiusY: root.radius }
        PathLine { x: root.radius; y: root.height }
        PathArc { x: 0; y: root.height - root.radius; radiusX: root.radius; radiusY: root.radius }
        PathLine { x: 0; y: root.radius }
        PathArc { x: root.radius; y: 0; radiusX: root.radius; radiusY: root.radius }
    }
}
