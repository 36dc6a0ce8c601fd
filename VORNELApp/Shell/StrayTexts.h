#pragma once

#include <VORNELApp/Model/AppModel.h>
#include <VORNELApp/Model/LatestAnswer.h>

#include <QQmlParserStatus>
#include <QUrl>

namespace vornel {

/// The unsaved texts that no editor takes up: those of skills that aren't in the library or could not be
/// opened, and files that could not be read. One after another is shown, until it is deleted or postponed to
/// the next start.
class StrayTexts : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::AppModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(QString notice READ notice NOTIFY changed)
    Q_PROPERTY(bool isFile READ isFile NOTIFY changed)
    Q_PROPERTY(bool isText READ isText NOTIFY changed)
    Q_PROPERTY(QString place READ place NOTIFY changed)
    Q_PROPERTY(QUrl folder READ folder NOTIFY changed)

public:
    explicit StrayTexts(QObject *parent = nullptr);

    /// What the user reads of the text that is shown, or of why none can be looked for; empty when there is
    /// nothing to tell.
    QString notice() const;

    /// Whether there is a file to show; and whether its text can be copied.
    bool isFile() const { return !m_shown.isEmpty(); }
    bool isText() const { return isFile() && !m_shown.first().isSetAside; }

    /// The file, and the folder in which it lies; empty without one.
    QString place() const;
    QUrl folder() const;

    /// Puts the text on the clipboard.
    Q_INVOKABLE void copy();

    /// Deletes the file at this place, unless it is no longer shown.
    Q_INVOKABLE void discard(const QString &place);

    /// Shows the next one.
    Q_INVOKABLE void postpone();

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void changed();

private:
    using Files = QList<DraftFile>;

    void look();
    bool isStray(const DraftFile &file) const;
    QString nameOf(const QUuid &id) const;
    QString descriptionOf(const DraftFile &file) const;
    void showAnswer(const Answer<Files> &answer);
    void show(const Files &files);
    void conclude(const Outcome &outcome);

    AppModel *m_model = nullptr;
    Files m_shown;
    Files m_postponed;
    QString m_lookFailure;
    QString m_failure; ///< of what was last done with the text that is shown
    LatestAnswer<Answer<Files>> m_looking;
};

} // namespace vornel
