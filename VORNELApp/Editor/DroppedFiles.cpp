#include "DroppedFiles.h"

#include <VORNELCore/Records/SkillFiles.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

// All of it is held in memory.
constexpr qsizetype mostEntries = 10'000;
constexpr qint64 mostBytes = 10 * SkillFiles::sizeLimit;

/// Reads files until one can't be taken; then `failure` says why.
class Reading
{
public:
    void read(const QFileInfo &entry, const QString &path)
    {
        if (!m_dropped.failure.isEmpty())
            return;
        if (entry.isSymLink())
            return refuse(u"«\u00A0%1\u00A0» est un lien\u00A0: une compétence n’en garde pas."_s, entry);
        if (entry.isDir())
            readFolder(entry, path);
        else if (entry.isFile())
            readFile(entry, path);
        else
            refuse(u"«\u00A0%1\u00A0» n’est ni un fichier ni un dossier."_s, entry);
    }

    DroppedFiles result()
    {
        if (m_dropped.failure.isEmpty() && m_dropped.files.isEmpty() && m_dropped.emptyFolders.isEmpty())
            m_dropped.failure = u"Il n’y a rien à copier."_s;
        return std::move(m_dropped);
    }

private:
    void readFolder(const QFileInfo &folder, const QString &path)
    {
        if (!folder.isReadable() || !folder.isExecutable())
            return refuse(u"«\u00A0%1\u00A0» ne peut pas être lu."_s, folder);
        const auto entries =
            QDir(folder.filePath()).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        if (entries.isEmpty() && takesOneMore(folder))
            m_dropped.emptyFolders.append(path);
        for (const QFileInfo &entry : entries)
            read(entry, path + u'/' + entry.fileName());
    }

    void readFile(const QFileInfo &entry, const QString &path)
    {
        QFile file(entry.filePath());
        if (entry.size() > SkillFiles::sizeLimit)
            return refuse(u"«\u00A0%1\u00A0» dépasse 25\u00A0Mio."_s, entry);
        if (!takesOneMore(entry))
            return;
        if (!file.open(QIODevice::ReadOnly))
            return refuse(u"«\u00A0%1\u00A0» ne peut pas être lu. "_s + file.errorString(), entry);
        const QByteArray bytes = file.read(SkillFiles::sizeLimit + 1);
        m_bytes += bytes.size();
        if (file.error() != QFileDevice::NoError || bytes.size() > SkillFiles::sizeLimit)
            return refuse(u"«\u00A0%1\u00A0» ne peut pas être lu."_s, entry);
        if (m_bytes > mostBytes)
            return refuse(u"Il y a plus de 250\u00A0Mio à copier."_s, entry);
        m_dropped.files.append({path, bytes});
    }

    bool takesOneMore(const QFileInfo &entry)
    {
        const bool takes = m_dropped.files.size() + m_dropped.emptyFolders.size() < mostEntries;
        if (!takes)
            refuse(u"Il y a plus de 10\u202F000 éléments à copier."_s, entry);
        return takes;
    }

    void refuse(const QString &sentence, const QFileInfo &entry)
    {
        m_dropped.failure = sentence.contains(u"%1"_s) ? sentence.arg(entry.fileName()) : sentence;
    }

    DroppedFiles m_dropped;
    qint64 m_bytes = 0;
};

} // namespace

DroppedFiles readDropped(const QList<QUrl> &urls, const QString &folder)
{
    Reading reading;
    for (const QUrl &url : urls) {
        if (!url.isLocalFile())
            return {.failure = u"Seuls des fichiers de cet ordinateur peuvent être copiés."_s};
        const QFileInfo entry(QDir::cleanPath(url.toLocalFile()));
        reading.read(entry, folder.isEmpty() ? entry.fileName() : folder + u'/' + entry.fileName());
    }
    return reading.result();
}

} // namespace vornel
