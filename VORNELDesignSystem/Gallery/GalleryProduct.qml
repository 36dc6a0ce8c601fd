import QtQuick

/** The product’s own marks. */
GallerySection {
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
