#include "Scratch.h"

#include <VORNELInfrastructure/Skills/FrontMatter.h>

#include <cstdlib>

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
        {u"---\n{name: 12, description: 漢字}\n---\n"_s, u"2 name 2 description=[漢字]"_s},
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

/// "error name-missing SKILL.md:1", a line for each.
std::string listed(const QList<SkillProblem> &problems)
{
    std::string text;
    for (const SkillProblem &problem : problems) {
        EXPECT_FALSE(problem.message.isEmpty());
        text += (rawValue(problem.severity) + u' ' + problem.rule + u' ' + problem.path + u':' +
                 QString::number(problem.line) + u'\n')
                    .toStdString();
    }
    return text;
}

std::string times(int count, const std::string &text)
{
    std::string all;
    for (int index = 0; index < count; ++index)
        all += text;
    return all;
}

class Check : public testing::Test, protected TestWorkspace
{
protected:
    std::string check(const QList<QUuid> &ids = {}) { return listed(service->checkSkills(ids).result()); }
};

const std::string head = "---\nname: demo\ndescription: Montre.\n";
const std::string soundText = head + R"(license: MIT
compatibility: )" + times(500, "é") +
                              R"(
metadata: {version: 1}
allowed-tools: Read
---
Voir [le guide](docs/guide.md#début "Guide"), ![l’image](<docs/une image.png>), [elle](docs/une%20image.png?raw=true)
et [le tout](./docs), [ici](#ici), [ailleurs](https://example.org/rien.md), [plus haut](../autre/SKILL.md), [là][réf].

« outils/ » contient le reste. `[rien](rien.md)`

```
[rien](rien.md)
```

    [rien](rien.md)

[réf]: docs/guide.md
)";

TEST_F(Check, FindsNothingInASoundSkill)
{
    create(u"demo"_s, QString::fromStdString(soundText));
    write("workspace/skills/demo/docs/guide.md",
          "[le texte](../SKILL.md), [une image](docs/une%20image.png)");
    write("workspace/skills/demo/docs/une image.png", std::string("\x89PNG\0", 5));
    write("workspace/skills/demo/outils/deux/main.py", "from outils.formes import carré\n");
    write("workspace/skills/demo/formes.py", "");
    write("workspace/skills/demo/.caché", "");
    write("workspace/skills/demo/LICENSE.txt", "MIT");
    EXPECT_EQ(check(), "");
}

TEST_F(Check, FindsEachProblem)
{
    struct Case
    {
        std::map<std::string, std::string> files; ///< "SKILL.md" is written anew for each case
        std::string found;
    };
    const std::string end = "---\n";
    const std::vector<Case> cases{
        {{{"SKILL.md", "# Démo\n"}}, "error front-matter-missing SKILL.md:1\n"},
        {{{"SKILL.md", head + "license: a: b\n" + end}}, "error front-matter-invalid SKILL.md:4\n"},
        {{{"SKILL.md", "---\ndescription: x\n---\n"}}, "error name-missing SKILL.md:1\n"},
        {{{"SKILL.md", "---\ndescription: x\nname: [demo]\n---\n"}}, "error name-missing SKILL.md:3\n"},
        {{{"SKILL.md", "---\nname: demo\ndescription: 2024-01-01\n---\n"}},
         "error description-missing SKILL.md:3\n"},
        {{{"SKILL.md", "---\nname: demo\ndescription: 'true'\n---\n"}}, ""},
        {{{"SKILL.md", "---\nname: Démo\ndescription: x\n---\n"}}, "error name-invalid SKILL.md:2\n"},
        {{{"SKILL.md", "---\nname: de--mo\ndescription: x\n---\n"}}, "error name-invalid SKILL.md:2\n"},
        {{{"SKILL.md", "---\nname: " + times(65, "a") + "\ndescription: x\n---\n"}},
         "error name-invalid SKILL.md:2\n"},
        {{{"SKILL.md", "---\nname: " + times(64, "a") + "\ndescription: x\n---\n"}},
         "error name-differs SKILL.md:2\n"},
        {{{"SKILL.md", "---\nname: demo\ndescription: ' '\n---\n"}},
         "error description-missing SKILL.md:3\n"},
        {{{"SKILL.md", "---\nname: demo\ndescription: |\n  " + times(1024, "🎈") + "\n---\n"}}, ""},
        {{{"SKILL.md", "---\nname: demo\ndescription: |\n  " + times(1025, "🎈") + "\n---\n"}},
         "error description-too-long SKILL.md:3\n"},
        {{{"SKILL.md", head + "compatibility: " + times(501, "é") + "\n" + end}},
         "error compatibility-too-long SKILL.md:4\n"},
        {{{"SKILL.md", head + "version: 1\nauthor: x\n" + end}},
         "hint field-unknown SKILL.md:4\nhint field-unknown SKILL.md:5\n"},
        {{{"SKILL.md", head + end + times(496, "\n")}}, ""},
        {{{"SKILL.md", head + end + times(496, "\n") + "x"}}, "hint text-too-long SKILL.md:501\n"},
        {{{"SKILL.md", head + end + "\n[a](b.md)\n\ndeux\n![c](d.png) et [e](f)\n"},
          {"docs/g.md", "[a](h.md) docs/"}},
         "error link-broken SKILL.md:6\nerror link-broken SKILL.md:9\nerror link-broken SKILL.md:9\n"
         "hint file-unmentioned docs/g.md:0\nerror link-broken docs/g.md:1\n"},
        {{{"SKILL.md", head + end + "vieux.guide.md, docs/, guide.mdx\n"}, {"guide.md", "voir guide.md"}},
         "hint file-unmentioned guide.md:0\n"},
        {{{"SKILL.md", head + end + "scripts/run\n"}, {"scripts/run", "#!/usr/bin/env -S python3 -u\n"}},
         "hint script-not-executable scripts/run:1\n"},
        {{{"SKILL.md", head + "\xFF\n" + end}}, "error skill-unreadable SKILL.md:0\n"},
    };
    const QUuid demo = create(u"demo"_s).manifest.id;
    for (const Case &next : cases) {
        for (const auto &[file, bytes] : next.files)
            write("workspace/skills/demo/" + file, bytes);
        EXPECT_EQ(check({demo}), next.found) << next.files.at("SKILL.md");
        for (const auto &[file, bytes] : next.files)
            fs::remove(path("workspace/skills/demo/" + file));
    }
    EXPECT_EQ(check(), "error skill-unreadable SKILL.md:0\n");
}

TEST_F(Check, GoesOnPastASkillThatCanNotBeRead)
{
    const QString sound = QString::fromStdString(head + "---\n");
    const QUuid demo = create(u"demo"_s, sound).manifest.id;
    const QUuid other = create(u"other"_s, sound).manifest.id;
    fs::create_symlink(path(), path("workspace/skills/demo/lien"));
    const QList<SkillProblem> problems = service->checkSkills({other, demo}).result();
    EXPECT_EQ(listed(problems), "error name-differs SKILL.md:2\nerror skill-unreadable SKILL.md:0\n");
    EXPECT_EQ(problems.first().slug, u"other"_s);
    EXPECT_EQ(listed(service->checkSkills({}).result()),
              "error skill-unreadable SKILL.md:0\nerror name-differs SKILL.md:2\n");
    const QUuid nobody = QUuid::createUuid();
    EXPECT_EQ(errorOf([&] { check({nobody}); }), Error::skillNotFound(nobody));
}

/// The folders that `VORNEL_REAL_SKILLS` names are those of both assistants, "claude" and "codex".
TEST_F(Check, FindsInPublicSkillsWhatAReaderDoes)
{
    const char *folder = std::getenv("VORNEL_REAL_SKILLS");
    if (folder == nullptr)
        GTEST_SKIP() << "without VORNEL_REAL_SKILLS";
    for (const std::string assistant : {"claude", "codex"}) {
        for (const auto &[file, bytes] : treeOf(fs::path(folder) / assistant)) {
            if (!file.ends_with('/'))
                write(assistant + '/' + file, bytes);
        }
    }
    service->scanImports().result();
    const ImportPlan plan = service->resolveCollisions(CollisionChoice::codex).result();
    ASSERT_EQ(service->commitImport(plan.id).result().skills.size(), 8);

    QStringList found;
    for (const SkillProblem &problem : service->checkSkills({}).result())
        found.append(problem.slug + u' ' + problem.rule + u' ' + problem.path + u':' +
                     QString::number(problem.line));
    EXPECT_EQ(found, (QStringList{u"slack-gif-creator file-unmentioned requirements.txt:0"_s}));
}

} // namespace
} // namespace vornel
