#include "LocaleText.h"

#include <QCollator>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace vornel::LocaleText {

namespace {

/// Expensive to make, and not safe to share between threads: each thread keeps its own.
QCollator userCollator(bool countsDigits)
{
    const QLocale user;
    QCollator made(user.language() == QLocale::C ? QLocale(QLocale::French) : user);
    made.setCaseSensitivity(Qt::CaseInsensitive);
    made.setNumericMode(countsDigits);
    return made;
}

/// Whether a character never joins with another of which this is true too: the letters and signs of western
/// texts.
bool isLone(QChar c)
{
    return (c < u'\u0300' && c != u'\r') || (c >= u'\u2010' && c <= u'\u2027');
}

int graphemeCount(const QChar *text, qsizetype length)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text, length);
    int count = 0;
    while (finder.toNextBoundary() != -1)
        ++count;
    return count;
}

} // namespace

bool comesBefore(const QString &a, const QString &b)
{
    thread_local const QCollator collator = userCollator(false);
    return collator.compare(a, b) < 0;
}

QCollatorSortKey sortKey(const QString &text)
{
    thread_local const QCollator collator = userCollator(true);
    return collator.sortKey(text);
}

QString folded(const QString &text)
{
    QString letters = text.normalized(QString::NormalizationForm_D);
    letters.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return std::move(letters).toCaseFolded();
}

QString caseless(const QString &text)
{
    return text.toLower().normalized(QString::NormalizationForm_C);
}

int characterCount(const QString &text)
{
    // Two lone characters in a row never form one. Only the stretches in between, rare in most texts, have to
    // be given to the slow search for boundaries.
    qsizetype count = 0;
    for (qsizetype begin = 0, end = 0; begin < text.size(); begin = end) {
        end = begin + 1;
        while (end < text.size() && !(isLone(text.at(end - 1)) && isLone(text.at(end))))
            ++end;
        count += end == begin + 1 ? 1 : graphemeCount(text.constData() + begin, end - begin);
    }
    return static_cast<int>(count);
}

QString truncated(const QString &text, int characters)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (int count = 0; count < characters && end >= 0; ++count)
        end = finder.toNextBoundary();
    return end < 0 ? text : text.left(end);
}

QString titleFromIdentifier(const QString &identifier)
{
    QStringList words = identifier.split(u'-', Qt::SkipEmptyParts);
    for (QString &word : words)
        word.replace(0, 1, word.at(0).toUpper());
    return words.join(u' ');
}

QString identifierFromTitle(const QString &title)
{
    static const QRegularExpression others(u"[^a-z0-9]+"_s);
    QString letters = folded(title);
    letters.replace(u"œ"_s, u"oe"_s).replace(u"æ"_s, u"ae"_s).replace(u"ß"_s, u"ss"_s);
    return letters.split(others, Qt::SkipEmptyParts).join(u'-');
}

} // namespace vornel::LocaleText
