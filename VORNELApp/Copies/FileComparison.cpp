#include "FileComparison.h"

#include <VORNELApp/Model/Answer.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QtConcurrentRun>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

QString sign(DiffLine::Kind kind)
{
    switch (kind) {
    case DiffLine::Kind::added:
        return u"+"_s;
    case DiffLine::Kind::removed:
        return u"−"_s;
    case DiffLine::Kind::context:
    case DiffLine::Kind::hunk:
        break;
    }
    return {};
}

bool isFolder(const QString &path)
{
    return path.endsWith(u'/');
}

} // namespace

FileComparison::FileComparison(QObject *parent)
    : QAbstractListModel(parent), m_comparing(this, [this](const Result &result) { show(result); })
{}

void FileComparison::compare(TargetKind target, const QString &path)
{
    if (isFolder(path))
        showFolder();
    else
        begin(fileOf(std::nullopt, path), fileOf(target, path));
}

void FileComparison::compareWithText(TargetKind target, const QString &path, const QString &text)
{
    begin(bytesOf(text), fileOf(target, path));
}

void FileComparison::compareText(const QString &path, const QString &text)
{
    begin(fileOf(std::nullopt, path), bytesOf(text));
}

void FileComparison::compareTargets(const QString &slug, const QString &path)
{
    TargetComparing &comparer = m_model->targetComparer();
    if (isFolder(path))
        showFolder();
    else
        begin([&comparer, slug, path] { return comparer.readTargetFile(slug, TargetKind::claude, path); },
              [&comparer, slug, path] { return comparer.readTargetFile(slug, TargetKind::codex, path); });
}

void FileComparison::compareVersion(const QString &entry, const QString &path)
{
    if (isFolder(path))
        showFolder();
    else
        ask(fileOfVersion(entry, path), fileOf(std::nullopt, path));
}

void FileComparison::compareVersions(const QString &former, const QString &entry, const QString &path)
{
    if (isFolder(path))
        showFolder();
    else
        ask(fileOfVersion(former, path), fileOfVersion(entry, path));
}

void FileComparison::clear()
{
    m_comparing.forget();
    show({});
}

void FileComparison::compareSetAside(const QString &copy, const QString &path)
{
    if (isFolder(path))
        return showFolder();
    const Side nothing = [] { return QtFuture::makeReadyFuture(std::optional<QByteArray>()); };
    begin(m_skillID.isNull() ? nothing : fileOf(std::nullopt, path),
          [this, copy, path] { return m_model->recovery().readSetAsideFile(copy, path); });
}

void FileComparison::compareAdded(const SkillAddition &addition, const QString &path)
{
    if (isFolder(path))
        return showFolder();
    begin(fileOf(std::nullopt, path),
          [this, addition, path] { return m_model->addition()->readFile(addition, path); });
}

void FileComparison::copy(int first, int last) const
{
    QStringList texts;
    for (int row = std::max(0, first); row <= last; ++row) {
        const DiffLine &line = m_result.lines.at(row);
        if (line.oldNumber != 0 || line.newNumber != 0)
            texts.append(line.text);
    }
    if (!texts.isEmpty())
        QGuiApplication::clipboard()->setText(texts.join(u'\n'));
}

FileComparison::Side FileComparison::fileOf(std::optional<TargetKind> copy, const QString &path) const
{
    return [this, id = m_skillID, copy, path] { return m_model->inspector().readFile(id, copy, path); };
}

FileComparison::Side FileComparison::fileOfVersion(const QString &entry, const QString &path) const
{
    return
        [this, id = m_skillID, entry, path] { return m_model->histories().readVersionFile(id, entry, path); };
}

FileComparison::Side FileComparison::bytesOf(const QString &text)
{
    return [bytes = text.toUtf8()] { return QtFuture::makeReadyFuture(std::optional(bytes)); };
}

void FileComparison::begin(Side before, Side after)
{
    show({});
    ask(std::move(before), std::move(after));
}

void FileComparison::ask(Side before, Side after)
{
    m_comparing.ask(
        [before = std::move(before), after = std::move(after)] { return compare(before(), after()); });
}

void FileComparison::showFolder()
{
    m_comparing.forget();
    show({{}, u"Dossier vide."_s}); // else it would not be listed
}

QCoro::Task<FileComparison::Result> FileComparison::compare(Bytes before, Bytes after)
{
    const auto former = co_await answerOf(std::move(before));
    const auto latter = co_await answerOf(std::move(after));
    for (const auto &side : {former, latter}) {
        if (!side.value)
            co_return {{}, side.outcome.message};
    }
    co_return co_await QtConcurrent::run(difference, former.value->value_or(QByteArray()),
                                         latter.value->value_or(QByteArray()));
}

FileComparison::Result FileComparison::difference(const QByteArray &before, const QByteArray &after)
{
    constexpr qsizetype largestText = 1'048'576;
    if (std::max(before.size(), after.size()) > largestText)
        return {{}, u"Ce fichier est trop grand pour être comparé ici."_s};
    const auto lines = lineDiff(before, after);
    if (!lines)
        return {{}, u"Ce fichier n’est pas un texte."_s};
    if (!lines->isEmpty())
        return {*lines, {}};
    return {{}, before.isEmpty() ? u"Ce fichier est vide."_s : u"Il n’y a pas de différence."_s};
}

void FileComparison::show(Result result)
{
    if (m_result == result)
        return;
    beginResetModel();
    m_result = std::move(result);
    endResetModel();
    Q_EMIT explanationChanged();
}

int FileComparison::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_result.lines.size());
}

QVariant FileComparison::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DiffLine &line = m_result.lines.at(index.row());
    switch (role) {
    case TextRole:
        return line.text;
    case SignRole:
        return sign(line.kind);
    case OldNumberRole:
        return line.oldNumber;
    case NewNumberRole:
        return line.newNumber;
    default:
        return {};
    }
}

QHash<int, QByteArray> FileComparison::roleNames() const
{
    return {
        {TextRole, "text"}, {SignRole, "sign"}, {OldNumberRole, "oldNumber"}, {NewNumberRole, "newNumber"}};
}

} // namespace vornel
