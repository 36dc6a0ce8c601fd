import QtQuick.Controls.Basic

ApplicationWindow {
    height: 800
    visible: true
    width: 1240
}
