import VORNELDesignSystem

/** Rows of versions below their days. Qt 6.4 makes no section of a bound component, so that this is a file of its own. */
RowList {
    section.property: "day"

    section.delegate: VersionSection {}
}
