import QtQuick

/** A component of this module, named by its file, that is made when it is first wanted, and stays. */
Loader {
    required property string file
    required property var properties
    property bool isWanted: false

    function make(): void {
        if (status === Loader.Null)
            setSource(file, properties);
    }

    visible: isWanted
    Component.onCompleted: if (isWanted) make()
    onIsWantedChanged: if (isWanted) make()
}
