import QtQuick

/** Every component in every state, for those who work on them. */
Rectangle {
    color: Colors.canvas

    Flickable {
        anchors.fill: parent
        anchors.margins: Metrics.page
        contentHeight: sections.height
        contentWidth: width

        Column {
            id: sections

            spacing: Metrics.page
            width: parent.width

            GalleryProduct {}
            GalleryTexts {}
            GalleryButtons {}
            GalleryInputs {}
            GalleryStates {}
            GalleryCards {}
            GalleryScreens {}
            GallerySheets {}
        }
    }
}
