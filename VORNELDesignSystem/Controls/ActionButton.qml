import QtQuick
import QtQuick.Templates as T

/**
 * A button. A screen has at most one primary action; a destructive one can't be undone. With `isCompact`,
 * only the symbol is shown, and the text is its name for assistive tools and its tool tip. With `isFlat`, a quiet
 * one has no surface until the pointer is over it; nor has a compact one.
 */
T.Button {
    id: control

    enum Role { Primary, Quiet, Destructive }

    property int role: ActionButton.Quiet
    property string symbol
    property bool isSymbolTrailing: false
    property bool isCompact: false
    property bool isFlat: isCompact
    property color symbolColor: foreground

    readonly property color foreground: {
        if (!enabled)
            return Colors.muted;
        if (role === ActionButton.Primary)
            return Colors.inkOnAccent;
        return role === ActionButton.Destructive ? Colors.danger : Colors.text;
    }
    readonly property color fill: {
        if (role === ActionButton.Primary) {
            if (!enabled)
                return Colors.hover;
            return down ? Colors.accentPressed : hovered ? Colors.accentHover : Colors.accent;
        }
        if (role === ActionButton.Destructive)
            return Qt.alpha(Colors.danger, !enabled ? 0 : down ? 0.28 : hovered ? 0.2 : 0.12);
        return down ? Colors.line : hovered ? Colors.hover : isFlat ? "transparent" : Colors.raised;
    }

    implicitWidth: isCompact ? implicitHeight : implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Metrics.controlHeight
    leftPadding: isCompact ? 0 : Metrics.large
    rightPadding: leftPadding
    focusPolicy: Qt.StrongFocus
    font: Typography.control
    hoverEnabled: true

    // Qt 6.4 has neither a way to tell assistive tools that an item is disabled nor an action of its own for buttons.
    Accessible.description: !enabled ? "indisponible" : T.ToolTip.text === text ? "" : T.ToolTip.text
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

    background: Rectangle {
        border.color: control.role === ActionButton.Quiet && !control.isFlat ? Colors.line : "transparent"
        border.width: Metrics.hairline
        color: control.fill
        radius: Metrics.controlRadius

        Behavior on color {
            ColorAnimation {
                duration: Motion.quick
            }
        }

        FocusRing {
            control: control
        }
    }
    contentItem: SymbolLabel {
        color: control.foreground
        font: control.font
        isSymbolAlone: control.isCompact
        isSymbolTrailing: control.isSymbolTrailing
        symbol: control.symbol
        symbolColor: control.symbolColor
        text: control.text
    }

    Hint {
        control: control
        text: control.text
        visible: control.isCompact && (control.hovered || control.visualFocus)
    }
}
