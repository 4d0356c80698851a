import QtQuick
import Tamble

// How the mascot moves in each expression. All but "working" end by themselves; then nothing runs.
QtObject {
    id: motion

    property string expression: "waiting"
    property bool active: false // allowed to move, and seen

    property real stretch: 1    // height, as a factor
    property real lift: 0       // above the ground, as a part of the side
    property real lean: 0       // degrees
    property real lids: 1       // eyes: 1 open, 0 shut
    property real wind: 0.5     // lines of speed: 0…1 of their way

    readonly property real pose: expression === "working" ? -8 : 0

    // Slow movements go on in steps of 40 ms: at the screen's own pace they would cost a job a part of its processor.
    property real time: 0 // seconds
    readonly property Timer steps: Timer {
        interval: 40
        repeat: true
        onTriggered: {
            motion.time += interval / 1000;
            if (motion.expression === "working")
                motion.rock();
            else if (motion.time < 19.2)
                motion.breathe();
            else
                motion.rest();
        }
    }

    readonly property Animation catching: SequentialAnimation {
        NumberAnimation { target: motion; property: "stretch"; to: 1.06; duration: 120; easing.type: Easing.OutQuad }
        NumberAnimation { target: motion; property: "stretch"; to: 1; duration: 180; easing.type: Easing.OutBack }
    }

    readonly property Animation happy: SequentialAnimation {
        loops: 2
        NumberAnimation { target: motion; property: "lift"; to: 0.07; duration: 160; easing.type: Easing.OutQuad }
        NumberAnimation { target: motion; property: "lift"; to: 0; duration: 160; easing.type: Easing.InQuad }
        NumberAnimation { target: motion; property: "stretch"; to: 0.96; duration: 70 }
        NumberAnimation { target: motion; property: "stretch"; to: 1; duration: 110; easing.type: Easing.OutQuad }
    }

    readonly property Animation sorry: SequentialAnimation {
        loops: 2
        NumberAnimation { target: motion; property: "lean"; to: -3; duration: 180; easing.type: Easing.InOutSine }
        NumberAnimation { target: motion; property: "lean"; to: 3; duration: 240; easing.type: Easing.InOutSine }
        NumberAnimation { target: motion; property: "lean"; to: 0; duration: 180; easing.type: Easing.InOutSine }
    }

    function breathe() {
        const part = time % 3.2;
        stretch = 1 + 0.011 * (1 - Math.cos(2 * Math.PI * part / 3.2));
        lids = part > 3.04 ? 0.1 : 1;
    }

    function rock() {
        lean = pose * Math.cos(2 * Math.PI * time / 1.6);
        wind = time / 1.6 % 1;
    }

    function rest() {
        for (const movement of [steps, catching, happy, sorry])
            movement.stop();
        time = 0;
        stretch = 1;
        lift = 0;
        lean = pose;
        lids = 1;
        wind = 0.5;
    }

    function begin() {
        rest();
        const movements = {"waiting": steps, "working": steps, "catching": catching, "happy": happy, "sorry": sorry};
        if (active && expression in movements)
            movements[expression].start();
    }

    onExpressionChanged: begin()
    onActiveChanged: begin()
    Component.onCompleted: begin()
}
