#include "YamlFields.h"

#include "YamlFailure.h"

#include <QRegularExpression>
#include <QSet>

#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/exceptions.h>
#include <yaml-cpp/mark.h>
#include <yaml-cpp/parser.h>

#include <algorithm>
#include <sstream>
#include <utility>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

/// What YAML allows only when it is escaped. The parser doesn't refuse it, and takes some for an end.
bool isForbidden(QChar c)
{
    return c.category() == QChar::Other_Control && c != u'\t' && c != u'\n' && c != u'\r' && c != u'\u0085';
}

/// Whether readers of YAML take a scalar for a text: one without quotes may be a number, a date, a truth or
/// nothing.
bool isText(const std::string &tag, const QString &value)
{
    static const QString number =
        uR"([-+]?(0x[\da-f]+|0o[0-7]+|\.inf|(\d+\.?\d*|\.\d+)(e[-+]?\d+)?)|\.nan)"_s;
    static const QString date = uR"(\d{4}-\d\d?-\d\d?)"_s;
    static const QRegularExpression other(
        QRegularExpression::anchoredPattern(u"~|null|true|false|"_s + number + u'|' + date),
        QRegularExpression::CaseInsensitiveOption);
    return tag != "?" || !other.match(value).hasMatch();
}

/// Gathers the fields of the outermost level, and passes over what is below.
class FieldReader : public YAML::EventHandler
{
public:
    /// The head ends on this line.
    FieldReader(FrontMatter &head, qint64 lastLine) : m_head(head), m_lastLine(lastLine) {}

    void OnDocumentStart(const YAML::Mark &mark) override
    {
        if (std::exchange(m_hasBegun, true))
            refuse(
                lineOf(mark),
                u"cette ligne ne fait pas partie des champs\u00A0; retirez-la, ou la ligne «\u00A0...\u00A0» qui la précède"_s);
    }
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark &mark, YAML::anchor_t /*anchor*/) override
    {
        if (m_depth > 0)
            addNode(mark, std::nullopt);
    }
    void OnAlias(const YAML::Mark &mark, YAML::anchor_t /*anchor*/) override { addNode(mark, std::nullopt); }
    void OnScalar(const YAML::Mark &mark, const std::string &tag, YAML::anchor_t /*anchor*/,
                  const std::string &value) override
    {
        const QString text = QString::fromStdString(value);
        addNode(mark, m_isNamed && !isText(tag, text) ? std::nullopt : std::optional(text));
    }
    void OnSequenceStart(const YAML::Mark &mark, const std::string & /*tag*/, YAML::anchor_t /*anchor*/,
                         YAML::EmitterStyle::value /*style*/) override
    {
        addNode(mark, std::nullopt);
        ++m_depth;
    }
    void OnSequenceEnd() override { --m_depth; }
    void OnMapStart(const YAML::Mark &mark, const std::string & /*tag*/, YAML::anchor_t /*anchor*/,
                    YAML::EmitterStyle::value /*style*/) override
    {
        if (m_depth > 0)
            addNode(mark, std::nullopt);
        ++m_depth;
    }
    void OnMapEnd() override { --m_depth; }

    /// Takes what the parser has thrown.
    void refuse(const YAML::Exception &error)
    {
        const bool beganEarlier = isNoticedLate(error.msg) && !m_head.fields.isEmpty();
        refuse(beganEarlier ? m_head.fields.last().line : lineOf(error.mark), yamlFailureReason(error.msg));
    }

private:
    /// The first line of the head holds its mark.
    qint64 lineOf(const YAML::Mark &mark) const
    {
        return std::min<qint64>(std::max(mark.line, -1) + 2, m_lastLine);
    }

    /// Keeps the first reason.
    void refuse(qint64 line, const QString &reason)
    {
        if (!m_head.failure)
            m_head.failure = {line, reason};
    }

    /// Takes a field's name or its value in turn.
    void addNode(const YAML::Mark &mark, const std::optional<QString> &text)
    {
        if (m_depth > 1)
            return;
        if (m_depth == 0)
            return refuse(
                lineOf(mark),
                u"il n’est pas fait de champs\u00A0; écrivez «\u00A0nom: valeur\u00A0», avec une espace"_s);
        if (std::exchange(m_isNamed, !m_isNamed))
            m_head.fields.last().text = text;
        else
            addField(mark, text);
    }

    void addField(const YAML::Mark &mark, const std::optional<QString> &name)
    {
        if (!name)
            refuse(lineOf(mark), u"le nom d’un champ n’est pas un texte\u00A0; mettez-le entre guillemets"_s);
        else if (m_names.contains(*name))
            refuse(lineOf(mark), u"un champ est donné deux fois\u00A0; n’en gardez qu’un"_s);
        m_names.insert(name.value_or(QString()));
        m_head.fields.append({name.value_or(QString()), lineOf(mark)});
    }

    FrontMatter &m_head;
    qint64 m_lastLine;
    QSet<QString> m_names;
    int m_depth = 0;
    bool m_isNamed = false; ///< whether a value comes next
    bool m_hasBegun = false;
};

} // namespace

void readYamlFields(QStringView yaml, FrontMatter &head)
{
    const QChar *forbidden = std::ranges::find_if(yaml, isForbidden);
    if (forbidden != yaml.end()) {
        head.failure = {2 + std::count(yaml.begin(), forbidden, u'\n'),
                        u"un caractère de contrôle s’y trouve\u00A0; retirez-le"_s};
        return;
    }
    // An end that is stated lets the parser see what was left open before it.
    std::istringstream stream(yaml.toUtf8().toStdString() + "...\n");
    FieldReader reader(head, yaml.count(u'\n') + 2);
    try {
        YAML::Parser parser(stream);
        // One more is looked for, to refuse it. There may be no end of them: the parser doesn't always go on.
        if (parser.HandleNextDocument(reader))
            parser.HandleNextDocument(reader);
    } catch (const YAML::Exception &error) {
        reader.refuse(error);
    }
}

} // namespace vornel
