# Headers that nearly every source of a target reaches, compiled once for it. Sources still include what they use: those
# that are read several at a time, by clang-tidy, are read without these.
set(vornel_core_headers
    <algorithm> <array> <chrono> <exception> <filesystem> <functional> <map> <memory> <optional> <ranges> <set> <span>
    <string> <string_view> <system_error> <utility> <variant> <vector>
    <QDateTime> <QFuture> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject> <QList> <QMap> <QPromise> <QSet> <QString>
    <QStringList> <QUuid> <QVariant>)
set(vornel_window_headers ${vornel_core_headers}
    <QAbstractListModel> <QCoro/QCoroFuture> <QCoro/QCoroTask> <QGuiApplication> <QJSValue> <QObject>
    <QObjectBindableProperty> <QPointer> <QQmlEngine> <QQuickItem> <QQuickWindow> <QSettings> <QTextDocument> <QTimer>
    <QtQml/qqml.h>)
