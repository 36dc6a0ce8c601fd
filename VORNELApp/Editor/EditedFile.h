#pragma once

#include "SkillFileContent.h"

#include <VORNELApp/Drafts/FileDrafts.h>
#include <VORNELApp/Text/FaithfulText.h>

#include <QQuickTextDocument>

namespace vornel {

/// A text file of the open skill beside "SKILL.md" while it is edited in a document: what it holds, and over
/// that what is typed and not saved.
class EditedFile : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(vornel::SkillFileContent *content MEMBER m_content REQUIRED)
    Q_PROPERTY(vornel::FileDrafts *drafts MEMBER m_drafts REQUIRED)
    Q_PROPERTY(QQuickTextDocument *document MEMBER m_document REQUIRED)
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(bool isReadOnly READ isReadOnly NOTIFY changed)
    Q_PROPERTY(bool isModified READ isModified NOTIFY changed)
    Q_PROPERTY(bool isStale READ isStale NOTIFY changed)

public:
    using QObject::QObject;

    /// Whether there is a text to edit.
    bool isShown() const { return !m_path.isEmpty(); }

    /// Whether the file is VORNEL's own.
    bool isReadOnly() const;

    bool isModified() const { return isShown() && m_drafts->find(m_path).has_value(); }

    /// Whether the file holds something else than what the edits began with.
    bool isStale() const;

    /// Lets the edits stand over what the file holds now; or takes that, which can be undone.
    Q_INVOKABLE void keepMine();
    Q_INVOKABLE void takeDisk();

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void changed();

    /// The text of another file is shown.
    void begun();

private:
    void follow();
    void show(const std::optional<UnsavedFile> &edits);
    void begin();
    void followDrafts();
    void close();
    void measure();
    void conclude(const QString &path, const QString &text);

    SkillFileContent *m_content = nullptr;
    FileDrafts *m_drafts = nullptr;
    QQuickTextDocument *m_document = nullptr;
    std::optional<FaithfulText> m_text;
    QString m_path;           ///< empty while nothing is shown
    QString m_savedText;      ///< what the file holds
    QString m_digest;         ///< of it
    bool m_isFilling = false; ///< whether the document changes, and nobody types
};

} // namespace vornel
