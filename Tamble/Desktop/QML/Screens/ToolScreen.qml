import QtQuick
import Tamble

// What a tool works on at the left, what to choose at the right, where it goes and the button at the bottom.
Item {
    id: root

    property int margin: 36

    readonly property bool tight: width < 760
    readonly property bool hasFiles: App.tool.files.count > 0
    readonly property bool ofPages: App.tool.editor.startsWith("page")
    readonly property bool signs: App.tool.editor === "signature"
    property bool lists: false // all files in place of the editor
    // An editor shows pages of one document; for several, the pages are typed, or one is chosen to be signed.
    readonly property bool edits: hasFiles && !lists && App.tool.editor !== "none" && (!ofPages || App.tool.files.count === 1)

    Header {
        id: header

        x: root.margin
        y: Math.min(28, root.margin - 4)
        width: root.width - 2 * root.margin
        title: App.tool.title
        subtitle: App.tool.summary
        symbol: App.tool.symbol
        category: App.tool.category

        Segments {
            visible: root.hasFiles && App.tool.editor === "comparison"
            stretch: false
            options: [{ "label": qsTr("Preview") }, { "label": qsTr("Files") }]
            current: root.lists ? 1 : 0
            onPicked: index => root.lists = index === 1
        }
        AddButton { visible: root.hasFiles }
    }

    Item {
        id: work

        anchors { left: header.left; top: header.bottom; topMargin: Theme.space4; bottom: footer.top; bottomMargin: Theme.space4; right: options.left; rightMargin: root.tight ? 20 : 28 }

        FilesInvitation {
            anchors.fill: parent
            visible: !root.hasFiles
        }
        Loader {
            id: editor

            anchors { left: parent.left; right: parent.right; top: parent.top; bottom: files.top; bottomMargin: active && files.visible ? 14 : 0 }
            active: root.edits
            source: ({ "comparison": "ComparisonEditor.qml", "names": "NamesEditor.qml", "pageOrder": "PageEditor.qml",
                       "pageDeletion": "PageEditor.qml", "pageSelection": "PageEditor.qml", "signature": "SignatureEditor.qml" })[App.tool.editor] ?? ""
        }
        FileStrip {
            id: files

            anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
            visible: root.hasFiles && App.tool.editor !== "names" && !(root.edits && (root.ofPages || root.signs))
            height: !visible ? 0 : editor.active ? 62 : parent.height
            grid: !editor.active
        }
    }

    Scroller {
        id: options

        anchors { right: parent.right; rightMargin: root.margin - 12; top: work.top; bottom: work.bottom }
        width: (root.tight ? 272 : 348) + 12
        contentHeight: sections.height + 12

        Column {
            id: sections

            x: LayoutMirroring.enabled ? 12 : 0
            width: options.width - 12
            spacing: Theme.space4

            Repeater {
                model: App.tool.panel

                OptionSection {
                    width: sections.width
                    category: App.tool.category
                    panel: App.tool.panel
                    visible: !(root.edits && root.ofPages && control === "text")
                }
            }
            Loader {
                width: parent.width
                active: root.edits && (root.ofPages || root.signs) && App.tool.files.count === 1
                visible: active
                source: root.signs ? "SignatureTools.qml" : "PageTools.qml"
            }
        }
    }

    SaveFooter {
        id: footer

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        margin: root.margin
    }
}
