import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The sheet in which a skill is created. It stays open, with what was typed, until that has succeeded. */
Sheet {
    id: sheet

    required property AppModel model

    readonly property bool isReady: form.isValid && !form.isSlugTaken
    readonly property bool canCreate: isReady && !model.isWorking
    readonly property string validSlug: isReady ? form.slug : ""

    /** What stands in the assistants' folders under this identifier; empty if nothing does. */
    readonly property string warning: {
        if (occupants.count === 0)
            return "";
        if (!occupants.canBeReplaced)
            return occupants.count === 1 ? "Ce nom est déjà pris chez " + occupants.folders[0].assistant + "."
                                         : "Ce nom est déjà pris chez Claude et Codex.";
        return occupants.count === 1 ? occupants.folders[0].assistant + " a déjà un dossier de ce nom."
                                     : "Claude et Codex ont déjà un dossier de ce nom.";
    }

    /** The identifier under which another folder may stand. */
    property string askedSlug

    function create(): void {
        if (occupied.isAsking)
            return;
        askedSlug = form.slug;
        occupied.ask(askedSlug);
    }
    function submit(): void {
        if (isUsed && form.slug === askedSlug)
            form.submit();
    }

    function leave(): void {
        if (!form.isWaiting)
            model.departure.leave(Departure.FromForm);
    }

    firstFocus: name
    implicitWidth: Math.min(800, parent.width - 2 * Metrics.page)
    isGuarded: form.isModified || form.isWaiting
    title: "Nouvelle compétence"
    onAboutToHide: occupied.forget()
    onAboutToShow: form.reset()
    onDepartureAsked: leave()
    onSubmitted: if (canCreate) create()
    onValidSlugChanged: occupants.look(validSlug === "" ? [] : [validSlug])

    CreateSkillForm {
        id: form

        model: sheet.model
        onAccepted: sheet.close()
        onRefusalChanged: if (refusal !== "" && isSlugTaken) slug.forceActiveFocus(Qt.OtherFocusReason)
    }
    TargetOccupants {
        id: occupants

        model: sheet.model
    }
    OccupiedQuestion {
        id: occupied

        acceptText: "Remplacer"
        model: sheet.model
        rejectText: "Changer d’identifiant"
        title: {
            if (count === 0)
                return "La compétence n’est pas créée";
            return canAccept ? "Le dossier «\u00A0" + form.slug + "\u00A0» existe déjà" : "Le nom «\u00A0" + form.slug + "\u00A0» est déjà pris";
        }
        onAccepted: sheet.submit()
        onRejected: formerFocus = slug
        onUnoccupied: sheet.submit()
    }
    Connections {
        function onLeft(exit: int) {
            if (exit === Departure.FromForm && sheet.isUsed)
                sheet.close();
        }

        target: sheet.model.departure
    }
    DepartureGuard {
        departure: sheet.model.departure
        isActive: sheet.isUsed && form.isModified
        onAsked: discarding.open()
    }
    DiscardQuestion {
        id: discarding

        departure: sheet.model.departure
        onAccepted: {
            sheet.close();
            departure.resume();
        }
    }
    Item {
        implicitHeight: Math.max(identity.height, classification.height)
        width: parent.width

        Accessible.description: sheet.warning !== "" ? sheet.warning : sheet.isReady ? "Formulaire valide" : ""
        Accessible.name: sheet.title
        Accessible.role: Accessible.Form

        FormSection {
            id: identity

            anchors.left: parent.left
            anchors.right: divider.left
            anchors.rightMargin: Metrics.huge
            title: "Identité"

            LabelledField {
                id: name

                hint: "Ex. Audit de sécurité"
                label: "Nom"
                text: form.displayName
                width: parent.width
                onEdited: text => form.displayName = text
            }
            LabelledField {
                id: slug

                hint: "audit-securite"
                label: "Identifiant"
                note: "Le dossier de la compétence portera ce nom."
                problem: form.slugProblem
                text: form.slug
                width: parent.width
                onEdited: text => form.slug = text
            }
            LabelledField {
                hint: "Ce que cette compétence permet de faire"
                label: "Description courte"
                text: form.summary
                width: parent.width
                onEdited: text => form.summary = text
            }
        }
        Rectangle {
            id: divider

            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: parent.top
            color: Colors.line
            width: Metrics.hairline
        }
        FormSection {
            id: classification

            anchors.left: divider.right
            anchors.leftMargin: Metrics.huge
            anchors.right: parent.right
            title: "Classification"

            LabelledField {
                hint: "sécurité, audit, qualité"
                label: "Mots-clés"
                text: form.tags
                width: parent.width
                onEdited: text => form.tags = text
            }
            CategoryChoice {
                currentID: form.category
                model: sheet.model
                width: parent.width
                onChosen: id => form.category = id
            }
            MaturityChoice {
                current: form.maturity
                texts: form.maturityTexts
                width: parent.width
                onChosen: index => form.maturity = index
            }
        }
    }
    ErrorPanel {
        text: form.isSlugTaken ? "" : form.refusal
        width: parent.width
        onDismissed: {
            form.forgetRefusal();
            name.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    Item {
        implicitHeight: actions.height + Metrics.small
        width: parent.width

        SymbolLabel {
            anchors.left: parent.left
            anchors.verticalCenter: actions.verticalCenter
            color: sheet.warning !== "" ? Colors.warning : form.isValid ? Colors.success : Colors.secondary
            font: Typography.small
            symbol: sheet.warning !== "" ? "triangle-alert" : form.isValid ? "circle-check" : "circle"
            text: sheet.warning !== "" ? sheet.warning : form.validationHint
            visible: !form.hasName || form.slugProblem === "" // which is told at the field

            Accessible.name: text
            Accessible.role: Accessible.StaticText
        }
        Row {
            id: actions

            anchors.bottom: parent.bottom
            anchors.right: parent.right
            spacing: Metrics.medium

            ActionButton {
                enabled: !form.isWaiting
                text: "Annuler"
                onClicked: sheet.leave()
            }
            ActionButton {
                enabled: sheet.canCreate
                role: ActionButton.Primary
                text: "Créer"
                onClicked: sheet.create()
            }
        }
    }
}
