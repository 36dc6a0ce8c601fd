pragma Singleton

import QtQuick

/** Lengths on a grid of 4, in device-independent pixels. */
QtObject {
    readonly property int tiny: 4
    readonly property int small: 8
    readonly property int medium: 12
    readonly property int large: 16
    readonly property int huge: 24
    readonly property int page: 32

    readonly property int controlRadius: 8
    readonly property int cardRadius: 12
    readonly property int hairline: 1
    readonly property int focusWidth: 2

    readonly property int controlHeight: 36
    readonly property int rowHeight: 44
    readonly property int symbol: 18
    readonly property int largeSymbol: 40
    readonly property int sidebarWidth: 216
    readonly property int railWidth: 208
    readonly property int cardWidth: 264
    readonly property int cardHeight: 164

    /** The least width of a row or a bar for its buttons to have words; in a narrower one, they only have symbols. */
    readonly property int roomForTexts: 860
}
