import QtQuick
import Tamble

// One section of a tool's panel: the control that its data ask for.
Column {
    id: root

    required property int index
    required property string control
    required property string heading
    required property var choices
    required property string moreLabel
    required property var moreChoices
    required property string label
    required property int number
    required property int lowest
    required property int highest
    required property string typed
    required property string placeholder
    required property string note

    property string category
    property PanelModel panel
    property bool showsMore: moreChoices.some(choice => choice.chosen)

    spacing: Theme.space1

    Label {
        width: parent.width
        visible: text
        kind: "strong"
        text: root.heading
        wrapMode: Text.Wrap
        bottomPadding: Theme.space1
    }

    Loader {
        width: parent.width
        sourceComponent: ({ "cards": cards, "segments": segments, "toggle": toggle, "number": number_, "text": text_, "password": password })[root.control] ?? null
    }

    Label {
        width: parent.width
        visible: text
        quiet: true
        text: root.note
        wrapMode: Text.Wrap
        topPadding: Theme.space1
    }

    Component {
        id: cards

        Column {
            id: list

            readonly property var all: root.showsMore ? root.choices.concat(root.moreChoices) : root.choices

            spacing: 2

            // By number: choosing changes all choices, and the keyboard stays where it is.
            Repeater {
                model: list.all.length

                ChoiceCard {
                    required property int index

                    readonly property var choice: list.all[index] ?? list.all[0]

                    width: list.width
                    text: choice.label
                    description: choice.description
                    chosen: choice.chosen
                    category: root.category
                    onClicked: root.panel.choose(root.index, index)
                }
            }
            PushButton {
                anchors.left: parent.left
                visible: root.moreChoices.length > 0 && !root.showsMore
                kind: "quiet"
                text: root.moreLabel
                onClicked: root.showsMore = true
            }
        }
    }
    Component {
        id: segments

        Column {
            spacing: Theme.space2

            Segments {
                width: parent.width
                options: root.choices
                onPicked: index => root.panel.choose(root.index, index)
            }
            Label {
                width: parent.width
                visible: text
                quiet: true
                text: (root.choices.find(choice => choice.chosen) ?? { "description": "" }).description
                wrapMode: Text.Wrap
            }
        }
    }
    Component {
        id: toggle

        Toggle {
            text: root.choices[0].label
            description: root.choices[0].description
            category: root.category
            on: root.choices.length > 1 ? !root.choices[1].chosen : root.choices[0].chosen
            onSwitched: on => root.panel.choose(root.index, on ? 0 : 1)
        }
    }
    Component {
        id: number_

        Row {
            spacing: Theme.space3

            NumberBox {
                from: root.lowest
                to: root.highest
                value: root.number
                Accessible.name: root.label
                onValueModified: root.panel.setNumber(root.index, value)
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - 152
                quiet: true
                text: root.label
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
    }
    Component {
        id: text_

        Column {
            spacing: Theme.space1

            Label {
                width: parent.width
                visible: text && text !== root.heading
                quiet: true
                text: root.choices[0].description || root.label
                wrapMode: Text.Wrap
            }
            TextBox {
                id: field

                width: parent.width
                placeholderText: root.placeholder
                Accessible.name: root.label
                onTextEdited: root.panel.type(root.index, text)

                Binding { target: field; property: "text"; value: root.typed; when: !field.activeFocus }
            }
        }
    }
    Component {
        id: password

        TextBox {
            id: secret

            secret: true
            placeholderText: root.placeholder
            Accessible.name: root.heading
            onTextEdited: root.panel.type(root.index, text)

            Binding { target: secret; property: "text"; value: root.typed; when: !secret.activeFocus }
        }
    }
}
