#include "History.h"

#include <VORNELApp/Model/Answer.h>
#include <VORNELCore/Text/IsText.h>

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString nounOf(const QString &path)
{
    return path.endsWith(u'/') ? u"dossier"_s : u"fichier"_s;
}

} // namespace

History::History(std::shared_ptr<WindowServicing> service, Operations &operations, Library &library,
                 SelectedSkill &selected, CopyReplacement &replacement)
    : m_service(std::move(service)),
      m_operations(operations),
      m_library(library),
      m_selected(selected),
      m_replacement(replacement)
{
    connect(&m_selected, &SelectedSkill::idChanged, this, &History::close);
    connect(&m_replacement, &CopyReplacement::agreed, this, [this](CopyReplacement::Purpose purpose) {
        if (purpose == CopyReplacement::Returning)
            bringBack();
    });
}

void History::show(const QUuid &id)
{
    if (std::exchange(m_skillID, id) != id)
        Q_EMIT skillIDChanged();
}

void History::bringBack(const QString &entry)
{
    ask({.entry = entry, .confirmation = u"VERSION RÉTABLIE"_s}, u"Revenir à cette version"_s,
        u"La version choisie dans l’historique"_s);
}

void History::bringBackFile(const QString &entry, const QString &path)
{
    const QString what = nounOf(path);
    ask({.entry = entry, .paths = {path}, .confirmation = what.toUpper() + u" REPRIS"_s},
        u"Reprendre ce "_s + what, u"La version de VORNEL avec ce %1 repris"_s.arg(what));
}

void History::removeFile(const QString &entry, const QString &path)
{
    const QString what = nounOf(path);
    ask({.entry = entry, .paths = {path}, .confirmation = what.toUpper() + u" RETIRÉ"_s},
        u"Retirer ce "_s + what, u"La version de VORNEL sans ce "_s + what);
}

void History::ask(Return wish, const QString &verb, const QString &newVersion)
{
    const bool isAsking = m_replacement.isLooking() || m_replacement.isAsking();
    if (m_operations.isWorking() || isAsking || !m_selected.detail())
        return;
    const SkillManifest &shown = m_selected.detail()->manifest;
    wish.skillID = shown.id;
    wish.revision = shown.revision;
    m_return = std::move(wish);
    m_replacement.bringBack(verb, newVersion);
}

void History::bringBack()
{
    m_operations.perform([this, wish = m_return]() -> QCoro::Task<> {
        const SkillDetail skill =
            co_await m_service->revert(wish.skillID, wish.revision, wish.entry, wish.paths);
        m_selected.show(skill);
        co_await m_library.read();
        const bool isOther = skill.manifest.revision > wish.revision;
        m_operations.confirm(isOther ? wish.confirmation : u"RIEN À CHANGER"_s);
    });
}

void History::copyText(const QString &entry, const QString &path)
{
    readText(entry, path);
}

QCoro::Task<> History::readText(QString entry, QString path)
{
    const Operations::Running running(m_operations);
    m_operations.clearError();
    const auto answer = co_await answerOf(m_service->readVersionFile(m_skillID, entry, path));
    const std::optional<QByteArray> bytes = answer.value.value_or(std::nullopt);
    if (!answer.value) {
        m_operations.showFailure(answer.outcome);
    } else if (!bytes || !isText(*bytes)) {
        m_operations.showFailure({.succeeded = false, .message = u"Ce fichier n’est pas un texte."_s});
    } else {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(*bytes));
        m_operations.confirm(u"TEXTE COPIÉ"_s);
    }
}

void History::prune(qint64 keep, qint64 days)
{
    m_operations.perform([this, keep, days]() -> QCoro::Task<> {
        co_await m_service->prune({.keep = keep, .days = days});
        co_await m_library.read();
        m_operations.confirm(u"HISTORIQUE ALLÉGÉ"_s);
    });
}

} // namespace vornel
