#pragma once

#include "Scratch.h"

#include <VORNELApp/Model/AppModel.h>

#include <QColor>
#include <QImage>
#include <QObject>
#include <QQuickItem>

namespace vornel {

/// What a test of the screens works on: scratch folders, and a model of them on the real service.
class Fixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(vornel::AppModel *model READ model NOTIFY modelChanged)
    Q_PROPERTY(QString openedFolder MEMBER m_openedFolder) // which the desktop was asked to open
    Q_PROPERTY(bool isUnreadable MEMBER m_isUnreadable)    // whether looks into skills' files fail
    Q_PROPERTY(int lookCount MEMBER m_lookCount)           // at what stands in the way of copies

public:
    explicit Fixture(QObject *parent = nullptr);
    ~Fixture() override;

    AppModel *model() const { return m_model.get(); }

    /// A new process on the same folders and settings; and one that follows what others change.
    Q_INVOKABLE void restart() { restart(nullptr); }
    Q_INVOKABLE void restartWatching();

    /// Writes a file below the scratch folder: "claude/audit/SKILL.md".
    Q_INVOKABLE void write(const QString &below, const QString &text) const;

    /// Writes a file that isn't UTF-8, unless its text is plain.
    Q_INVOKABLE void writeLatin1(const QString &below, const QString &text) const;

    /// The bytes of a file, and those of a text, as hexadecimal digits.
    Q_INVOKABLE QString bytes(const QString &below) const;
    Q_INVOKABLE static QString bytesOfText(const QString &text);

    /// Writes a picture of one colour.
    Q_INVOKABLE void writePicture(const QString &below, const QSize &size) const;

    /// Saves a skill's text as another program would, and tells whether that succeeded.
    Q_INVOKABLE bool saveElsewhere(const QString &slug, const QString &text) const;

    /// The unsaved texts that are kept.
    Q_INVOKABLE QStringList keptTexts() const;

    /// Keeps an unsaved text of a skill of the library.
    Q_INVOKABLE void keep(const QString &slug, const QString &text) const;

    /// The texts of a skill that its history holds.
    Q_INVOKABLE QStringList history(const QString &slug) const;

    /// The colour of a picture there.
    Q_INVOKABLE static QColor pixel(const QImage &picture, int x, int y) { return picture.pixelColor(x, y); }

    /// What is on the clipboard.
    Q_INVOKABLE static QString clipboard();

    /// Removes a file, or a folder with all it holds.
    Q_INVOKABLE void remove(const QString &below) const;

    /// A model whose onboarding is done, with one skill for each slug, opened once.
    Q_INVOKABLE void fillLibrary(const QStringList &slugs);

    /// One more skill, named like its slug, in a category and of a maturity.
    Q_INVOKABLE void create(const QString &slug, const QString &category, vornel::Maturity maturity);

    /// One more skill, of any name, summary and keywords.
    Q_INVOKABLE void create(const QString &slug, const QString &name, const QString &summary,
                            const QString &category, const QStringList &tags);

    /// Deletes a category; its skills go to "other".
    Q_INVOKABLE void deleteCategory(const QString &id);

    /// Creates a skill, or a category, as another program would.
    Q_INVOKABLE void createElsewhere(const QString &slug,
                                     const QString &category = SkillCategory::otherID) const;
    Q_INVOKABLE void createCategoryElsewhere(const QString &name) const;

    /// Throws skills of the library away.
    Q_INVOKABLE void trash(const QStringList &slugs);

    /// Deletes everything in the trash, as another program would.
    Q_INVOKABLE void emptyTrashElsewhere() const;

    /// Holds a dragged text over an item, as the window system does; and lets it go there.
    Q_INVOKABLE static void dragOver(QQuickItem *item, const QString &text);
    Q_INVOKABLE static void drop(QQuickItem *item, const QString &text);

    /// The same with files of these addresses.
    Q_INVOKABLE static void dragOver(QQuickItem *item, const QList<QUrl> &files);
    Q_INVOKABLE static void drop(QQuickItem *item, const QList<QUrl> &files);

    /// Locks the workspace, as another program would: operations wait until it is released; those that only
    /// read don't where the other program only reads.
    Q_INVOKABLE void holdWorkspace(bool onlyReads = false);
    Q_INVOKABLE void releaseWorkspace();

    /// The identifier of the skill of this slug; null without one.
    Q_INVOKABLE QUuid idOf(const QString &slug) const;
    Q_INVOKABLE QUuid trashedIdOf(const QString &slug) const;

    /// The place of this below the scratch folder, in full.
    Q_INVOKABLE QString path(const QString &below) const;

    /// In place of the desktop's file manager.
    Q_INVOKABLE void openFolder(const QUrl &url) { m_openedFolder = url.toLocalFile(); }

Q_SIGNALS:
    void modelChanged();

private:
    void create(const CreateSkillRequest &request);
    void restart(const std::shared_ptr<WorkspaceWatch> &watch);

    Scratch m_scratch;
    bool m_isUnreadable = false;
    int m_lookCount = 0;
    QString m_openedFolder;
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<WorkspaceHold> m_hold; // goes before the model, which waits for its operations
};

} // namespace vornel
