pragma Singleton

import QtQuick

/** The type of the product: Oxanium for everything but code. Sizes in device-independent pixels. */
QtObject {
    readonly property string family: "Oxanium"

    readonly property font display: Qt.font({ family: family, pixelSize: 40, weight: Font.DemiBold })
    readonly property font title: Qt.font({ family: family, pixelSize: 24, weight: Font.DemiBold })
    readonly property font section: Qt.font({ family: family, pixelSize: 16, weight: Font.DemiBold })
    readonly property font lead: Qt.font({ family: family, pixelSize: 16 })
    readonly property font body: Qt.font({ family: family, pixelSize: 14 })
    readonly property font control: Qt.font({ family: family, pixelSize: 14, weight: Font.Medium })
    readonly property font small: Qt.font({ family: family, pixelSize: 12 })
    readonly property font label: Qt.font({ family: family, pixelSize: 11, weight: Font.DemiBold, letterSpacing: 1.6 })
    /** Measures a text of the small type. */
    readonly property FontMetrics smallMetrics: FontMetrics {
        font: Typography.small
    }

    readonly property font code: Qt.font({ family: "monospace", pixelSize: 13 })
}
