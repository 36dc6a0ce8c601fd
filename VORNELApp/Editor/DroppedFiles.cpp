#include "DroppedFiles.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr qsizetype mostFiles = 10'000;
constexpr qint64 mostBytes = 250 * 1'048'576LL;
constexpr qint64 mostBytesOfFile = 25 * 1'048'576LL;

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
        if (m_dropped.failure.isEmpty() && m_dropped.files.isEmpty())
            m_dropped.failure = u"Il n’y a aucun fichier à copier."_s;
        return std::move(m_dropped);
    }

private:
    void readFolder(const QFileInfo &folder, const QString &path)
    {
        if (!folder.isReadable() || !folder.isExecutable())
            return refuse(u"«\u00A0%1\u00A0» ne peut pas être lu."_s, folder);
        const auto entries =
            QDir(folder.filePath()).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        for (const QFileInfo &entry : entries)
            read(entry, path + u'/' + entry.fileName());
    }

    void readFile(const QFileInfo &entry, const QString &path)
    {
        QFile file(entry.filePath());
        if (entry.size() > mostBytesOfFile)
            return refuse(u"«\u00A0%1\u00A0» dépasse 25\u00A0Mio."_s, entry);
        if (m_dropped.files.size() == mostFiles)
            return refuse(u"Il y a plus de 10\u202F000 fichiers à copier."_s, entry);
        if (!file.open(QIODevice::ReadOnly))
            return refuse(u"«\u00A0%1\u00A0» ne peut pas être lu. "_s + file.errorString(), entry);
        const QByteArray bytes = file.read(mostBytesOfFile + 1);
        m_bytes += bytes.size();
        if (file.error() != QFileDevice::NoError || bytes.size() > mostBytesOfFile)
            return refuse(u"«\u00A0%1\u00A0» ne peut pas être lu."_s, entry);
        if (m_bytes > mostBytes)
            return refuse(u"Il y a plus de 250\u00A0Mio à copier."_s, entry);
        m_dropped.files.append({path, bytes});
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
            return {{}, u"Seuls des fichiers de cet ordinateur peuvent être copiés."_s};
        const QFileInfo entry(QDir::cleanPath(url.toLocalFile()));
        reading.read(entry, folder.isEmpty() ? entry.fileName() : folder + u'/' + entry.fileName());
    }
    return reading.result();
}

} // namespace vornel
