#include "Fixture.h"

#include "StartingState.h"

#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Drafts/LocalDrafts.h>

#include <QClipboard>
#include <QCoro/QCoroTask>
#include <QDesktopServices>
#include <QDropEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QQuickWindow>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// The real service, of which looks into skills' files fail while `isUnreadable` holds, and those at what
/// stands in the way are counted.
class ObservedService : public LocalWorkspaceService
{
public:
    ObservedService(const bool &isUnreadable, int &count, std::shared_ptr<WorkspaceWatch> watch)
        : LocalWorkspaceService(std::make_shared<PosixFileSystem>(), FailureScope::Skill, std::move(watch)),
          m_isUnreadable(isUnreadable),
          m_count(count)
    {}

    QFuture<std::optional<QByteArray>> readFile(QUuid id, std::optional<TargetKind> copy,
                                                QString relativePath) override
    {
        if (m_isUnreadable)
            return QtFuture::makeExceptionalFuture<std::optional<QByteArray>>(
                std::make_exception_ptr(std::system_error(std::make_error_code(std::errc::io_error))));
        return LocalWorkspaceService::readFile(id, copy, std::move(relativePath));
    }

    QFuture<QList<TargetOccupant>> occupants(QList<TargetPlace> places) override
    {
        ++m_count;
        return LocalWorkspaceService::occupants(std::move(places));
    }

private:
    const bool &m_isUnreadable;
    int &m_count;
};

/// A text, or the addresses of files, as a drag carries them.
std::unique_ptr<QMimeData> carried(const QString &text)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    return data;
}

std::unique_ptr<QMimeData> carried(const QList<QUrl> &files)
{
    auto data = std::make_unique<QMimeData>();
    data->setUrls(files);
    return data;
}

QPoint middleOf(const QQuickItem &item)
{
    return item.mapToScene(item.boundingRect().center()).toPoint();
}

void drag(const QQuickItem &item, const QMimeData &data)
{
    QDragLeaveEvent leave; // what is before
    QCoreApplication::sendEvent(item.window(), &leave);
    QDragEnterEvent enter({}, Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(item.window(), &enter);
    QDragMoveEvent move(middleOf(item), Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(item.window(), &move);
}

void dragAndDrop(const QQuickItem &item, const QMimeData &data)
{
    drag(item, data);
    QDropEvent drop(middleOf(item), Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(item.window(), &drop);
}

QUuid idAmong(const QList<SkillSummary> &skills, const QString &slug)
{
    const auto found = std::ranges::find(skills, slug, &SkillSummary::slug);
    return found == skills.end() ? QUuid() : found->id;
}

} // namespace

Fixture::Fixture(QObject *parent) : QObject(parent)
{
    QDesktopServices::setUrlHandler(u"file"_s, this, "openFolder");
    restart();
}

Fixture::~Fixture()
{
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

void Fixture::restartWatching()
{
    restart(std::make_shared<WorkspaceWatch>(GatheringTime{20ms, 60ms}));
}

void Fixture::restart(const std::shared_ptr<WorkspaceWatch> &watch)
{
    m_model.reset();
    m_model = std::make_unique<AppModel>(
        std::make_shared<ObservedService>(m_isUnreadable, m_lookCount, watch), m_scratch.path("workspace"),
        m_scratch.path("claude"), m_scratch.path("codex"),
        std::make_shared<QSettings>(pathText(m_scratch.path("settings.ini")), QSettings::IniFormat),
        std::make_shared<LocalDrafts>(std::make_shared<PosixFileSystem>(), m_scratch.path("workspace")),
        watch);
    Q_EMIT modelChanged();
}

void Fixture::write(const QString &below, const QString &text) const
{
    m_scratch.write(below.toStdString(), text.toStdString());
}

QString Fixture::path(const QString &below) const
{
    return pathText(m_scratch.path(below.toStdString()));
}

void Fixture::writeLatin1(const QString &below, const QString &text) const
{
    m_scratch.write(below.toStdString(), text.toLatin1().toStdString());
}

QString Fixture::bytes(const QString &below) const
{
    return QString::fromLatin1(
        QByteArray::fromStdString(bytesOf(m_scratch.path(below.toStdString()))).toHex());
}

QString Fixture::bytesOfText(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toHex());
}

void Fixture::writePicture(const QString &below, const QSize &size) const
{
    const auto place = m_scratch.write(below.toStdString(), {});
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    picture.save(pathText(place));
}

bool Fixture::saveElsewhere(const QString &slug, const QString &text) const
{
    const auto other = startService(m_scratch.path());
    const SkillDetail skill = other->loadSkill(idOf(slug)).result();
    return other->saveSkill(skill.manifest.id, skill.manifest.revision, text).result().skillMD == text;
}

QStringList Fixture::keptTexts() const
{
    QStringList texts;
    if (!std::filesystem::exists(m_scratch.path("workspace/.vornel/drafts")))
        return texts;
    for (const auto &[name, bytes] : m_scratch.tree("workspace/.vornel/drafts")) {
        if (const auto draft = RecordJson::decodeDocument<KeptDraft>(QByteArray::fromStdString(bytes)))
            texts.append(draft->text);
    }
    return texts;
}

void Fixture::keep(const QString &slug, const QString &text) const
{
    m_model->drafts().keepDraft(idOf(slug), {text, u"name: "_s + slug, {}}).waitForFinished();
}

QStringList Fixture::history(const QString &slug) const
{
    QStringList texts;
    const std::string folder = "workspace/.vornel/history/" + uuidText(idOf(slug)).toStdString();
    for (const auto &[name, bytes] : m_scratch.tree(folder)) {
        if (name.ends_with("/SKILL.md"))
            texts.append(QString::fromStdString(bytes));
    }
    return texts;
}

QString Fixture::clipboard()
{
    return QGuiApplication::clipboard()->text();
}

void Fixture::remove(const QString &below) const
{
    std::filesystem::remove_all(m_scratch.path(below.toStdString()));
}

void Fixture::fillLibrary(const QStringList &slugs)
{
    for (const QString &slug : slugs)
        write(u"claude/%1/SKILL.md"_s.arg(slug), u"name: "_s + slug);
    QCoro::waitFor(m_model->start());
    m_model->beginImportScan();
    if (!QTest::qWaitFor([this] { return m_model->canCommitImport(); }))
        qWarning("The import can't be committed");
    m_model->commitImport();
    restart();
}

void Fixture::create(const QString &slug, const QString &category, Maturity maturity)
{
    CreateSkillRequest request = requestFor(slug, category);
    request.summary = u"Résumé de "_s + slug;
    request.tags = QStringList{u"un mot-clé"_s, u"deux"_s, u"trois"_s, u"quatre"_s};
    request.maturity = maturity;
    create(request);
}

void Fixture::create(const QString &slug, const QString &name, const QString &summary,
                     const QString &category, const QStringList &tags)
{
    create({slug, name, summary, category, tags, Maturity::draft, std::nullopt});
}

void Fixture::create(const CreateSkillRequest &request)
{
    QCoro::waitFor(m_model->createSkill(request));
    m_model->closeSkill();
}

void Fixture::deleteCategory(const QString &id)
{
    QCoro::waitFor(m_model->deleteCategory(id));
}

void Fixture::createElsewhere(const QString &slug, const QString &category) const
{
    const auto other = startService(m_scratch.path());
    other->createSkill(requestFor(slug, category)).waitForFinished();
}

void Fixture::createCategoryElsewhere(const QString &name) const
{
    const auto other = startService(m_scratch.path());
    other->createCategory(name, u"21D6D1"_s).waitForFinished();
}

void Fixture::trash(const QStringList &slugs)
{
    QSet<QUuid> ids;
    for (const QString &slug : slugs)
        ids.insert(idOf(slug));
    m_model->moveSkillsToTrash(ids);
}

void Fixture::emptyTrashElsewhere() const
{
    const auto other = startService(m_scratch.path());
    other->emptyTrash().waitForFinished();
}

void Fixture::dragOver(QQuickItem *item, const QString &text)
{
    drag(*item, *carried(text));
}

void Fixture::drop(QQuickItem *item, const QString &text)
{
    dragAndDrop(*item, *carried(text));
}

void Fixture::dragOver(QQuickItem *item, const QList<QUrl> &files)
{
    drag(*item, *carried(files));
}

void Fixture::drop(QQuickItem *item, const QList<QUrl> &files)
{
    dragAndDrop(*item, *carried(files));
}

void Fixture::holdWorkspace(bool onlyReads)
{
    const LockMode mode = onlyReads ? LockMode::Shared : LockMode::Exclusive;
    m_hold = std::make_unique<WorkspaceHold>(m_scratch.path("workspace"), mode);
}

void Fixture::releaseWorkspace()
{
    m_hold.reset();
}

QUuid Fixture::idOf(const QString &slug) const
{
    return idAmong(m_model->skills(Destination::library), slug);
}

QUuid Fixture::trashedIdOf(const QString &slug) const
{
    return idAmong(m_model->skills(Destination::trash), slug);
}

} // namespace vornel
