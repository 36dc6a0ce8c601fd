import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** The search in what is listed, where there is a list, and what can be done from every screen. */
Item {
    id: toolbar

    required property AppModel model

    required property bool isSkillOpen

    signal creationAsked
    signal synchronizationAsked

    /** The keyboard is to go on from the search to what it found. */
    signal resultsAsked

    /** Whether the buttons show symbols alone, so that the search field has room. */
    readonly property bool isNarrow: width < Metrics.roomForTexts

    /** Whether the keyboard was last in the search. */
    readonly property alias isSearching: search.focus

    function focusSearch(): void {
        search.forceActiveFocus(Qt.ShortcutFocusReason);
        search.selectAll();
    }

    implicitHeight: 68

    Accessible.name: "Outils"
    Accessible.role: Accessible.ToolBar

    Rectangle {
        anchors.bottom: parent.bottom
        color: Colors.line
        height: Metrics.hairline
        width: parent.width
    }
    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Metrics.huge
        anchors.rightMargin: Metrics.huge
        spacing: Metrics.medium

        SearchField {
            id: search

            Layout.fillWidth: true
            clearText: "Effacer"
            placeholderText: {
                switch (toolbar.model.selectedDestination) {
                case AppStates.Destination.needsAttention:
                    return "Rechercher dans «\u00A0À réparer\u00A0»";
                case AppStates.Destination.trash:
                    return "Rechercher dans la corbeille";
                default:
                    return "Rechercher une compétence";
                }
            }
            visible: !toolbar.isSkillOpen // the editor searches in its text
            Keys.onDownPressed: toolbar.resultsAsked()
            Keys.onEnterPressed: toolbar.resultsAsked()
            Keys.onReturnPressed: toolbar.resultsAsked()
            onTextChanged: toolbar.model.searchText = text

            Binding on text {
                value: toolbar.model.searchText
            }
        }
        Item {
            Layout.fillWidth: true
            visible: toolbar.isSkillOpen
        }
        BusySignal {
            isBusy: toolbar.model.isWorking
        }
        ActionButton {
            enabled: toolbar.isSkillOpen && !toolbar.model.isWorking
            isCompact: toolbar.isNarrow
            symbol: "folder-sync"
            text: "Synchroniser"
            onClicked: toolbar.synchronizationAsked()
        }
        ActionButton {
            enabled: !toolbar.model.isWorking
            isCompact: toolbar.isNarrow
            symbol: "rotate-cw"
            text: "Actualiser"
            onClicked: toolbar.model.reload()
        }
        ActionButton {
            enabled: !toolbar.model.isWorking
            role: toolbar.isSkillOpen ? ActionButton.Quiet : ActionButton.Primary // beside "Enregistrer"
            symbol: "plus"
            text: "Nouvelle compétence"
            onClicked: toolbar.creationAsked()
        }
    }
}
