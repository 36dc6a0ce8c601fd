import QtQml

/** What one page of the onboarding tells. */
QtObject {
    required property string title
    required property string subtitle
    required property string label
    required property string symbol
}
