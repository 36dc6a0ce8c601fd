#include "Scratch.h"

#include <VORNELInfrastructure/Skills/FrontMatter.h>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

/// What was read, on one line: "3 name=[text] 4 tags" or "! 3 " and the reason.
QString shown(const FrontMatter &head)
{
    if (!head.isPresent)
        return u"none"_s;
    if (head.failure)
        return u"! %1 %2"_s.arg(head.failure->line).arg(head.failure->reason);
    QStringList fields;
    for (const FrontMatter::Field &field : head.fields)
        fields.append(QString::number(field.line) + u' ' + field.name +
                      (field.text ? u"=["_s + *field.text + u']' : QString()));
    return fields.join(u' ');
}

TEST(FrontMatter, IsReadAsYaml)
{
    struct Case
    {
        QString text;
        QString found;
    };
    const std::vector<Case> cases{
        {u""_s, u"none"_s},
        {u"name: a\n"_s, u"none"_s},
        {u"\n---\nname: a\n---\n"_s, u"none"_s},
        {u"----\nname: a\n---\n"_s, u"none"_s},
        {u"---\n---\n"_s, u""_s},
        {u"---\n# rien\n---"_s, u""_s},
        {u"---\nname: a\n---\nname: b\n---\n"_s, u"2 name=[a]"_s},
        {u"\uFEFF--- \r\nname: a\r\ndescription: >\r\n  b\r\n  c\r\n---\r\n"_s,
         u"2 name=[a] 3 description=[b c\n]"_s},
        {u"---\ndescription: |-\n  name: no\n  ---\nname: a\n---"_s,
         u"2 description=[name: no\n---] 5 name=[a]"_s},
        {u"---\n'name': \"\\u00e9: \\\"x\\\"\" # c\n---\n"_s, u"2 name=[é: \"x\"]"_s},
        {u"---\nname: 'l''é'\n\nmetadata:\n  name: no\n  list: [a, {b: c}]\ntags:\n- a\nlicense: x\n---\n"_s,
         u"2 name=[l'é] 4 metadata 7 tags 9 license=[x]"_s},
        {u"---\n{name: 12, description: 漢字}\n---\n"_s, u"2 name=[12] 2 description=[漢字]"_s},
        {u"---\nname: ~\ndescription:\nlicense: ''\n---\n"_s, u"2 name 3 description 4 license=[]"_s},
        {u"---\nname: &x [a]\nother: *x\n---\n"_s, u"2 name 3 other"_s},
    };
    for (const Case &next : cases)
        EXPECT_EQ(shown(readFrontMatter(next.text)), next.found) << next.text.toStdString();
}

TEST(FrontMatter, TellsWhereItIsWrong)
{
    struct Case
    {
        QString head;
        qint64 line;
        QString reason; ///< a word of it
    };
    const std::vector<Case> cases{
        {u"name: a\ndescription: Use when: b"_s, 3, u"deux-points"_s},
        {u"name: a\n  description: b"_s, 3, u"retrait"_s},
        {u"name: a\n\tdescription: b"_s, 3, u"tabulation"_s},
        {u"name: \"a\ndescription: b"_s, 2, u"guillemets"_s},
        {u"name: a\ndescription: 'b\nlicense: c"_s, 3, u"guillemets"_s},
        {u"name: 'a' b"_s, 2, u"guillemets"_s},
        {u"name: \"a\\d\""_s, 2, u"barre oblique"_s},
        {u"name: [a\nb: c"_s, 2, u"crochet"_s},
        {u"name: {a"_s, 2, u"accolade"_s},
        {u"name: @a"_s, 2, u"réservé"_s},
        {u"description: **a** b"_s, 2, u"«\u00A0*\u00A0»"_s},
        {u"name: *a"_s, 2, u"«\u00A0*\u00A0»"_s},
        {u"name:a"_s, 2, u"champs"_s},
        {u"- name: a"_s, 2, u"champs"_s},
        {u"a: b\n[c]: d"_s, 3, u"nom d’un champ"_s},
        {u"a: b\nc: d\na: e"_s, 4, u"deux fois"_s},
        {u"a: b\n...\nc: d"_s, 4, u"retirez"_s},
        {u",a: b"_s, 2, u"retirez"_s},
        {u"a: b\nc: \u0004d"_s, 3, u"contrôle"_s},
        {u"a: &x b\n"_s + u"c: &"_s, 3, u"guillemets"_s},
        {u"a: "_s + QString(60'000, u'['), 2, u"niveaux"_s},
    };
    for (const Case &next : cases) {
        const FrontMatter head = readFrontMatter(u"---\n"_s + next.head + u"\n---\n"_s);
        ASSERT_TRUE(head.failure) << next.head.left(80).toStdString();
        EXPECT_EQ(head.failure->line, next.line) << next.head.left(80).toStdString();
        EXPECT_TRUE(head.failure->reason.contains(next.reason)) << next.head.left(80).toStdString() << '\n'
                                                                << head.failure->reason.toStdString();
        EXPECT_TRUE(head.fields.isEmpty());
    }
    for (const QString &open :
         {u"---\nname: a\n"_s, u"---"_s, u"---\n"_s + QString(70'000, u'\n') + u"---\n"_s})
        EXPECT_TRUE(shown(readFrontMatter(open)).startsWith(u"! 1 aucune"));
}

} // namespace
} // namespace vornel
