#pragma once

#include "AdditionList.h"

#include <VORNELApp/Model/LatestAnswer.h>
#include <VORNELApp/Model/Library.h>
#include <VORNELApp/Model/SelectedSkill.h>

#include <QUrl>

#include <filesystem>

namespace vornel {

/// Adds skills that the user has named as folders or archives: finds out what that would do, takes his
/// decisions, and does it.
class Addition : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(bool isReviewing READ isReviewing NOTIFY changed)
    Q_PROPERTY(bool isReviewed READ isReviewed NOTIFY changed)
    Q_PROPERTY(bool isReady READ isReady NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QString effect READ effect NOTIFY changed)
    Q_PROPERTY(QStringList newSlugs READ newSlugs NOTIFY changed)
    Q_PROPERTY(QStringList identicalSlugs READ identicalSlugs NOTIFY changed)
    Q_PROPERTY(QVariantList revisedIDs READ revisedIDs NOTIFY changed)
    Q_PROPERTY(vornel::AdditionList *differing READ differing CONSTANT)
    Q_PROPERTY(int differingCount READ differingCount NOTIFY changed)

public:
    Addition(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
             SelectedSkill &selected);

    /// Why these can't be added, for the user; empty where they can be tried: all are on this machine.
    Q_INVOKABLE static QString refusal(const QList<QUrl> &sources);

    /// Begins with these folders and archives, unless they are refused.
    Q_INVOKABLE void begin(const QList<QUrl> &sources);

    /// Looks again at the same. What was decided stays where nothing has changed.
    Q_INVOKABLE void review();

    Q_INVOKABLE void choose(int row, vornel::AdditionChoice choice);
    Q_INVOKABLE void chooseAll(vornel::AdditionChoice choice);

    /// Adds what was reviewed; `added` follows, or `problem` says why not.
    Q_INVOKABLE void add();

    Q_INVOKABLE void forgetProblem() { set(m_state); }

    /// Gives it up, or ends it once it is done.
    Q_INVOKABLE void leave();

    /// Whether the user has begun and hasn't left.
    bool isOpen() const { return m_state != State::Idle; }

    bool isReviewing() const { return m_state == State::Reviewing; }
    bool isReviewed() const { return m_state == State::Reviewed; }

    /// Whether all is decided, and there is something to add.
    bool isReady() const;

    /// Why the review or the addition has failed; empty unless it has.
    const QString &problem() const { return m_problem; }

    /// What adding would do, or what it waits for: "2 compétences seront ajoutées."
    QString effect() const;

    /// What the library doesn't have, what it has with the same content, and with another one.
    const QStringList &newSlugs() const { return m_newSlugs; }
    const QStringList &identicalSlugs() const { return m_identicalSlugs; }
    AdditionList *differing() { return &m_differing; }
    int differingCount() const { return m_differing.rowCount(); }

    /// The library's skills that are to get the added content.
    QVariantList revisedIDs() const;

    /// The library's skill of this slug; null where it has none.
    QUuid skillID(const QString &slug) const;

    /// The bytes of a file of a skill that is to be added; nothing where no file is.
    QFuture<std::optional<QByteArray>> readFile(const SkillAddition &reviewed, const QString &path) const;

Q_SIGNALS:
    void changed();

    /// The user is to see what would be added; what that is, is known; it is done.
    void begun();
    void reviewed();
    void added();

private:
    enum class State { Idle, Reviewing, Refused, Reviewed };
    using Reviewed = Answer<QList<SkillAddition>>;

    void show(const Reviewed &answer);
    void set(State state, const QString &problem = {});
    QCoro::Task<> run();
    QList<SkillAddition> decided() const;
    int revisedCount() const;
    QString confirmation() const;

    const std::shared_ptr<WindowServicing> m_service;
    Operations &m_operations;
    Library &m_library;
    SelectedSkill &m_selected;
    LatestAnswer<Reviewed> m_review;
    State m_state = State::Idle;
    QString m_problem;
    QList<std::filesystem::path> m_sources;
    QList<SkillAddition> m_reviewed; ///< with no decision yet
    QStringList m_newSlugs;
    QStringList m_identicalSlugs;
    AdditionList m_differing;
};

} // namespace vornel
