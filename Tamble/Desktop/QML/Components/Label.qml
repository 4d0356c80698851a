import QtQuick
import Tamble

// Text in one of the sizes of the type scale.
Text {
    property string kind: "body" // display, title, heading, strong, body, caption
    property bool quiet: false // second to what stands beside it

    readonly property var sizes: ({
        "display": Theme.displaySize, "title": Theme.titleSize, "heading": Theme.headingSize,
        "strong": Theme.strongSize, "body": Theme.bodySize, "caption": Theme.captionSize
    })

    color: quiet ? Theme.ink2 : Theme.ink
    font.family: Theme.family
    font.pixelSize: sizes[kind]
    font.weight: kind === "body" ? Font.Normal : kind === "strong" || kind === "caption" ? Font.DemiBold : 650
    font.letterSpacing: kind === "display" ? -0.7 : kind === "title" ? -0.5 : kind === "heading" ? -0.2 : 0
    // One line needs none, and asking for it loads every font a second time.
    lineHeight: wrapMode === Text.NoWrap ? 1 : kind === "body" || kind === "strong" ? 1.25 : 1.1
    horizontalAlignment: Text.AlignLeft // mirrored where the screen is, whatever is written
    verticalAlignment: Text.AlignVCenter
    textFormat: Text.PlainText
    Accessible.role: kind === "display" || kind === "title" || kind === "heading" ? Accessible.Heading : Accessible.StaticText
    Accessible.name: text
}
