import QtQuick
import Tamble

// A white card that other things stand on.
Rectangle {
    radius: Theme.cardRadius
    color: Theme.surface

    Shadow { radius: parent.radius }
}
