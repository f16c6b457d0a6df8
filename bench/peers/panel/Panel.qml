// The panel of bench/KitPanel.cpp in QML: the same rectangles, circles and texts in the same places.
import QtQuick

Rectangle {
    id: panel
    width: 640
    height: 430
    radius: 24
    color: "#ececec"

    readonly property color accent: "#007aff"
    readonly property color primary: Qt.rgba(0, 0, 0, 0.85)
    readonly property color secondary: Qt.rgba(0, 0, 0, 0.5)

    component Label: Text {
        color: panel.primary
        font.family: "Inter Display"
        font.pixelSize: 13
    }

    component Card: Item {
        property int number
        width: 140
        height: 120
        Rectangle {
            anchors.fill: parent
            radius: 12
            color: Qt.rgba(0, 0, 0, area.containsMouse ? 0.1 : 0.04)
            border.color: parent.number === 1 ? panel.accent : Qt.rgba(0, 0, 0, 0.26)
        }
        Column {
            anchors.centerIn: parent
            spacing: 5
            Rectangle {
                width: 96; height: 54; radius: 6
                anchors.horizontalCenter: parent.horizontalCenter
                color: Qt.rgba(0.56, 0.56, 0.58, 0.4)
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Display " + parent.parent.number
                font.bold: true
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "External Display"
                color: panel.secondary
                font.pixelSize: 11
            }
        }
        MouseArea { id: area; anchors.fill: parent; hoverEnabled: true }
    }

    component SettingRow: Item {
        property int number
        readonly property bool isOn: number % 2 === 0
        width: 600
        height: 24
        Label { anchors.verticalCenter: parent.verticalCenter; text: "Setting " + parent.number }
        Rectangle {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 34; height: 18; radius: 9
            color: parent.isOn ? panel.accent : Qt.rgba(0, 0, 0, 0.26)
            Rectangle {
                x: parent.parent.isOn ? 17.5 : 1.5
                y: 1.5
                width: 15; height: 15; radius: 7.5
                color: "white"
            }
        }
    }

    component PushButton: Rectangle {
        property string title
        width: 294
        height: 38
        radius: 8
        color: panel.accent
        Label {
            anchors.centerIn: parent
            text: parent.title
            color: "white"
            font.pixelSize: 15
            font.weight: Font.DemiBold
        }
        MouseArea { anchors.fill: parent }
    }

    Column {
        x: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 10
        Item {
            width: 600
            height: 48
            Rectangle {
                width: 48; height: 48; radius: 11
                gradient: Gradient {
                    GradientStop { position: 0; color: "#2e92ff" }
                    GradientStop { position: 1; color: "#007aff" }
                }
            }
            Column {
                x: 62
                anchors.verticalCenter: parent.verticalCenter
                spacing: 3
                Label { text: "Pin to a Display"; font.pixelSize: 18; font.bold: true }
                Label { text: "Revision 1"; color: panel.secondary }
            }
            Rectangle {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: pill.implicitWidth + 26
                height: pill.implicitHeight + 16
                radius: height / 2
                color: Qt.rgba(0, 0, 0, 0.05)
                Label { id: pill; anchors.centerIn: parent; text: "Not Pinned"; font.bold: true }
            }
        }
        Repeater {
            model: 1
            Row {
                readonly property int line: index
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 12
                Repeater { model: 4; Card { number: parent.line * 4 + index } }
            }
        }
        Column { Repeater { model: 6; SettingRow { number: index } } }
        Row {
            spacing: 12
            PushButton { title: "Pin" }
            PushButton { title: "Prevent" }
        }
    }
}
