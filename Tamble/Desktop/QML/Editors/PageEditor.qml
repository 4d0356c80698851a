import QtQuick
import Tamble

Item {}
