#pragma once

#include <VORNELApp/Model/AppModel.h>

#include <QImage>
#include <QQmlParserStatus>

namespace vornel {

/// What a file of the selected skill holds, as far as a person can look at it.
class SkillFileContent : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)
    Q_PROPERTY(Kind kind READ kind NOTIFY changed)
    Q_PROPERTY(QString size READ size NOTIFY changed)
    Q_PROPERTY(int lineCount READ lineCount NOTIFY changed)
    Q_PROPERTY(QString explanation READ explanation NOTIFY changed)

public:
    enum Kind { Nothing, Text, Picture, Unshown };
    Q_ENUM(Kind)

    using QObject::QObject;

    QString path() const { return m_path; }

    /// Begins to read this file of the selected skill; without a path, there is nothing to show.
    void setPath(const QString &path);

    Kind kind() const { return m_content.kind; }
    QString text() const { return m_content.text; }

    /// Identifies the bytes of the file, as `FileDrafts` does; a missing one is empty.
    QString digest() const { return m_content.digest; }

    /// No larger than screens need; null where the file holds none.
    QImage picture() const { return m_content.picture; }

    /// In words; empty where the size isn't known.
    QString size() const { return m_content.size; }

    /// How many lines the text has, of which the last need not be ended.
    int lineCount() const { return m_content.lineCount; }

    /// Why a file isn't shown, and what it is.
    QString explanation() const { return m_content.explanation; }

    /// Reads the file anew.
    Q_INVOKABLE void refresh();

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void pathChanged();
    void changed();

private:
    struct Content
    {
        Kind kind = Nothing;
        QString text = {};
        QString digest = {};
        QImage picture = {};
        QString size = {};
        int lineCount = 0;
        QString explanation = {};
    };

    static QCoro::Task<Content> read(QFuture<std::optional<QByteArray>> file, QString path);
    static Content contentOf(const QString &path, const QByteArray &bytes);
    void show(Content content);

    AppModel *m_model = nullptr;
    QString m_path;
    Content m_content;
    int m_request = 0; ///< counts the readings: only the last one is shown
};

} // namespace vornel
