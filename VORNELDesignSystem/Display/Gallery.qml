pragma ComponentBehavior: Bound

import QtQuick

/** Every component in every state, for those who work on them. */
Rectangle {
    id: gallery

    color: Colors.canvas

    component Section: Column {
        id: section

        required property string name
        default property alias items: content.data

        spacing: Metrics.medium
        width: parent.width

        Label {
            color: Colors.secondary
            font: Typography.label
            text: section.name
        }
        Flow {
            id: content

            spacing: Metrics.large
            width: parent.width
        }
    }

    Flickable {
        anchors.fill: parent
        anchors.margins: Metrics.page
        contentHeight: sections.height
        contentWidth: width

        Column {
            id: sections

            spacing: Metrics.page
            width: parent.width

            Section {
                name: "PRODUIT"

                ProductMark {}
                BusyGlyph {
                    height: 40
                    width: 40
                }
                ProductGlyph {
                    height: 160
                    symbol: "layout-grid"
                    width: 160
                }
            }
            Section {
                name: "TEXTES"

                Label {
                    font: Typography.display
                    text: "Titre d’accueil"
                }
                Label {
                    font: Typography.title
                    text: "Titre d’écran"
                }
                Label {
                    font: Typography.section
                    text: "Section"
                }
                Label {
                    text: "Texte courant"
                }
                Label {
                    color: Colors.secondary
                    font: Typography.small
                    text: "Texte secondaire"
                }
                Label {
                    color: Colors.muted
                    font: Typography.label
                    text: "ÉTIQUETTE"
                }
                Label {
                    font: Typography.code
                    text: "texte à chasse fixe"
                }
            }
            Section {
                name: "BOUTONS"

                ActionButton {
                    role: ActionButton.Primary
                    symbol: "plus"
                    text: "Action principale"
                }
                ActionButton {
                    symbol: "refresh-cw"
                    text: "Action discrète"
                }
                ActionButton {
                    role: ActionButton.Destructive
                    symbol: "trash-2"
                    text: "Action destructive"
                }
                ActionButton {
                    isSymbolTrailing: true
                    role: ActionButton.Primary
                    symbol: "arrow-right"
                    text: "Symbole après"
                }
                ActionButton {
                    isFlat: true
                    symbol: "x"
                    text: "Sans surface"
                }
                ActionButton {
                    isCompact: true
                    symbol: "rotate-cw"
                    text: "Symbole seul"
                }
                ActionButton {
                    enabled: false
                    role: ActionButton.Primary
                    text: "Désactivée"
                }
                ActionButton {
                    enabled: false
                    text: "Désactivée"
                }
                ActionButton {
                    enabled: false
                    role: ActionButton.Destructive
                    text: "Désactivée"
                }
                ActionButton {
                    focus: true
                    text: "Au clavier"
                    Component.onCompleted: forceActiveFocus(Qt.TabFocusReason)
                }
            }
            Section {
                name: "CHOIX ET SAISIE"

                ChoiceButton {
                    isChosen: true
                    text: "Choisi"
                }
                ChoiceButton {
                    text: "Non choisi"
                }
                ChoiceButton {
                    enabled: false
                    text: "Désactivé"
                }
                TextEntry {
                    placeholderText: "Champ vide"
                }
                TextEntry {
                    text: "Champ rempli"
                }
                TextEntry {
                    enabled: false
                    text: "Champ désactivé"
                }
                LabelledField {
                    hint: "Indication"
                    label: "Champ nommé"
                    note: "Une ligne qui aide à le remplir."
                    text: ""
                    width: 240
                }
                LabelledField {
                    label: "Champ refusé"
                    problem: "Une ligne qui dit pourquoi."
                    text: "Texte"
                    width: 240
                }
                ColorPicker {
                    width: 320
                }
                SearchField {
                    clearText: "Effacer"
                    placeholderText: "Rechercher"
                }
                SearchField {
                    clearText: "Effacer"
                    text: "recherche"
                }
                Repeater {
                    model: [Colors.accent, Colors.violet, Colors.magenta, Colors.orange]

                    ColorSwatch {
                        required property int index
                        required property color modelData

                        hue: modelData
                        isChosen: index === 0
                        text: String(modelData)
                    }
                }
                ActionButton {
                    symbol: "ellipsis"
                    text: "Menu"
                    onClicked: menu.open()

                    ActionMenu {
                        id: menu

                        y: parent.height + Metrics.tiny

                        ActionMenuItem {
                            symbol: "refresh-cw"
                            text: "Commande"
                        }
                        ActionMenuItem {
                            isChosen: true
                            text: "Choix en cours"
                        }
                        ActionMenuItem {
                            enabled: false
                            text: "Désactivée"
                        }
                        ActionMenuItem {
                            isDestructive: true
                            symbol: "trash-2"
                            text: "Destructive"
                        }
                    }
                }
            }
            Section {
                name: "ÉTATS"

                StatusBadge {
                    text: "Neutre"
                }
                StatusBadge {
                    text: "En cours"
                    tone: StatusBadge.Accent
                }
                StatusBadge {
                    text: "À jour"
                    tone: StatusBadge.Success
                }
                StatusBadge {
                    text: "Modifiée"
                    tone: StatusBadge.Warning
                }
                StatusBadge {
                    text: "En échec"
                    tone: StatusBadge.Danger
                }
                Tag {
                    text: "mot-clé"
                }
                Tag {
                    text: "un mot-clé bien trop long pour sa place"
                }
                TagRow {
                    tags: ["atelier", "maquette", "interface", "animation"]
                    width: 240
                }
                CapsuleMessage {
                    text: "ENREGISTRÉE"
                }
                ProgressLine {
                    value: 0.4
                }
            }
            Section {
                name: "CARTES"

                StatCard {
                    label: "COMPÉTENCES"
                    value: 24
                }
                StatCard {
                    hue: Colors.warning
                    label: "DOUBLONS"
                    value: 2
                }
                Surface {
                    height: 92
                    width: 160
                }
            }
            Section {
                name: "ÉTATS D’ÉCRAN"

                StateView {
                    line: "Une ligne qui dit quoi faire."
                    symbol: "check"
                    title: "Tout va bien"
                    width: 320
                }
                StateView {
                    hue: Colors.danger
                    line: "Une ligne qui dit ce qui s’est passé."
                    symbol: "triangle-alert"
                    title: "Un échec"
                    width: 320

                    ActionButton {
                        role: ActionButton.Primary
                        text: "Réessayer"
                    }
                }
            }
            Section {
                name: "PANNEAUX"

                ActionButton {
                    text: "Panneau"
                    onClicked: sheet.open()

                    Sheet {
                        id: sheet

                        title: "Panneau"

                        TextEntry {
                            focus: true
                            placeholderText: "Un champ"
                            width: parent.width
                        }
                    }
                }
                ActionButton {
                    text: "Confirmation"
                    onClicked: confirmation.open()

                    ConfirmationDialog {
                        id: confirmation

                        acceptText: "Supprimer"
                        isDestructive: true
                        message: "Cette action est irréversible."
                        title: "Supprimer l’élément ?"
                    }
                }
            }
        }
    }
}
