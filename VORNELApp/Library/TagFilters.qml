pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What else narrows the library: its errors, and its tags. The arrows, Home and End go from one to another. */
Item {
    id: bar

    required property AppModel model

    readonly property bool isUseful: faulty.isUseful || !tags.isEmpty
    readonly property var source: TagFilterList {
        id: tags

        model: bar.model
    }

    /** Whether the library around it is made: chips that were made along with it could be gone before they are. */
    property bool isMade: false

    implicitHeight: faulty.implicitHeight

    Timer {
        interval: 0
        running: true
        onTriggered: bar.isMade = true
    }
    FilterChip {
        id: faulty

        readonly property bool isUseful: tags.faultyCount > 0 || isChosen

        hue: Colors.danger
        isChosen: bar.model.filters.isFaultyOnly
        symbol: "triangle-alert"
        text: tags.faultyCount + " à corriger"
        visible: isUseful
        width: isUseful ? implicitWidth : 0
        onClicked: bar.model.filters.isFaultyOnly = !bar.model.filters.isFaultyOnly

        Accessible.name: "Compétences à corriger\u00A0: " + tags.faultyCount
        KeyNavigation.right: view
    }
    ListView {
        id: view

        readonly property real frame: Metrics.tiny // for the one around the chip that has the keyboard

        anchors.left: faulty.right
        anchors.leftMargin: (faulty.isUseful ? Metrics.small : 0) - frame
        anchors.right: parent.right
        activeFocusOnTab: count > 0
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        height: bar.height + 2 * frame
        leftMargin: frame
        orientation: ListView.Horizontal
        spacing: Metrics.small - 2
        y: -frame

        onCountChanged: currentIndex = Math.max(0, currentIndex)

        delegate: FilterChip {
            required property int index
            required property tagFilter record

            focusPolicy: Qt.ClickFocus
            isChosen: record.isChosen
            text: record.id
            y: view.frame
            onActiveFocusChanged: if (activeFocus) view.currentIndex = index
            onClicked: bar.model.filters.toggleTag(record.id)

            Accessible.name: record.spokenName
        }
        model: bar.isMade ? bar.source : null

        Accessible.name: "Mots-clés"
        Accessible.role: Accessible.List
        Keys.onPressed: event => {
            const ends = { [Qt.Key_Home]: 0, [Qt.Key_End]: count - 1 };
            event.accepted = event.key in ends;
            if (event.accepted)
                currentIndex = ends[event.key];
        }
    }
}
