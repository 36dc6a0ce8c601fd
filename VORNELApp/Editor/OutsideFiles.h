#pragma once

#include <VORNELApp/Model/AppModel.h>

#include <QFile>
#include <QUrl>

namespace vornel {

/// The open skill's files for other programs. Paths are below its folder; an empty one is the folder itself.
class OutsideFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)

public:
    using QObject::QObject;

    /// Where a file or folder stands.
    Q_INVOKABLE QUrl url(const QString &path) const;

    /// Puts a file or folder on the clipboard, for file managers to copy; or only where it stands.
    Q_INVOKABLE void copy(const QString &path) const;
    Q_INVOKABLE void copyPath(const QString &path) const;

    /// The files and folders that another program has put there.
    Q_INVOKABLE static QList<QUrl> copied();

    /// Opens a folder in the desktop's file manager, or tells that there is none.
    Q_INVOKABLE void openFolder(const QString &path) const { open(url(path)); }

    /// Opens a file in the application that the user chooses; in the one that the desktop has for it where
    /// the desktop doesn't ask.
    Q_INVOKABLE void openWith(const QString &path);

private:
    void choose(const QFile &file, const QUrl &place);
    void open(const QUrl &place) const;

    AppModel *m_model = nullptr;
};

} // namespace vornel
