pragma Singleton

import QtQuick
import Tamble

// The window's one palette, one type scale, one spacing scale, one set of durations.
QtObject {
    readonly property bool dark: App.preferences.appearance === 2
                                 || (App.preferences.appearance === 0 && App.look.isDark)

    readonly property color paper: dark ? "#17151C" : "#F6F3EE"
    readonly property color surface: dark ? "#221F2A" : "#FFFFFF"
    readonly property color sunken: dark ? "#1B1922" : "#EFEAE3"
    readonly property color raised: dark ? "#2E2A38" : "#FFFFFF" // on sunken
    readonly property color ink: dark ? "#F5F1EA" : "#211E2B"
    readonly property color ink2: dark ? "#B1ABBD" : "#625D70"
    readonly property color line: dark ? "#383342" : "#E3DCD2"
    readonly property color hover: dark ? "#2A2633" : "#F1ECE5"
    readonly property color focus: dark ? "#7FAAFF" : "#2B6BE4"
    readonly property color brand: dark ? "#FF7D5C" : "#CF3F1B"
    readonly property color brandHover: dark ? "#FF8F72" : "#BB3615"
    readonly property color brandSoft: dark ? "#43261F" : "#FFE4DA"
    readonly property color brandInk: dark ? "#2A0F07" : "#FFFFFF"
    readonly property color good: dark ? "#52D3A2" : "#117A57"
    readonly property color warn: dark ? "#F0B75A" : "#8A5A00"
    readonly property color bad: dark ? "#FF8A90" : "#C2303C"
    readonly property color scrim: dark ? "#B0000000" : "#66211E2B"

    readonly property var hues: dark
        ? ({ "video": "#A794FF", "audio": "#FFA95C", "images": "#52D3A2", "pdf": "#FF8A90", "smart": "#7FB2FF", "files": "#E5C060" })
        : ({ "video": "#6B4FD8", "audio": "#A85200", "images": "#117A57", "pdf": "#C2303C", "smart": "#1F63C6", "files": "#7A5B12" })
    readonly property var tints: dark
        ? ({ "video": "#2E2850", "audio": "#432B12", "images": "#16382B", "pdf": "#47201F", "smart": "#1A2E4D", "files": "#3B301A" })
        : ({ "video": "#ECE7FF", "audio": "#FFEBD6", "images": "#DDF5EA", "pdf": "#FFE3E4", "smart": "#E0ECFF", "files": "#F7ECCB" })

    function hue(category: string): color { return hues[category] ?? ink2 }
    function tint(category: string): color { return tints[category] ?? sunken }

    readonly property string family: "Inter"
    readonly property int displaySize: 34
    readonly property int titleSize: 28
    readonly property int headingSize: 20
    readonly property int strongSize: 15
    readonly property int bodySize: 13
    readonly property int captionSize: 12

    readonly property int space1: 4
    readonly property int space2: 8
    readonly property int space3: 12
    readonly property int space4: 16
    readonly property int space5: 24
    readonly property int space6: 36
    readonly property int space7: 48

    readonly property int control: 36
    readonly property int mainControl: 44
    readonly property int controlRadius: 10
    readonly property int cardRadius: 16
    readonly property int dropRadius: 28

    readonly property bool moves: !App.look.reducesMotion
    readonly property int quick: moves ? 120 : 0
    readonly property int calm: moves ? 180 : 0
    readonly property int screen: moves ? 220 : 0
}
