#include "Scratch.h"

#include <VORNELCore/Errors/ErrorMessage.h>
#include <VORNELCore/Errors/WorkspaceValidation.h>
#include <VORNELCore/Library/CategoryRules.h>
#include <VORNELCore/Library/LibraryQuery.h>
#include <VORNELCore/Library/LocaleText.h>
#include <VORNELCore/Library/NewSkillText.h>
#include <VORNELCore/Library/TagRules.h>
#include <VORNELCore/Library/Wording.h>
#include <VORNELCore/Records/RecordJson.h>
#include <VORNELCore/Records/SerializedForms.h>
#include <VORNELInfrastructure/Skills/SkillText.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextBoundaryFinder>

#include <limits>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

SkillManifest sampleManifest()
{
    return {.schemaVersion = 1,
            .id = QUuid(u"5A3F0E1C-8C7B-4E57-9B1F-0123456789AB"_s),
            .slug = u"demo"_s,
            .displayName = u"Démo / essai"_s,
            .summary = u"Résumé"_s,
            .category = u"design"_s,
            .tags = {u"a"_s, u"b"_s},
            .maturity = Maturity::ready,
            .revision = 9'007'199'254'740'993, // beyond what a double can hold
            .createdAt = QDateTime(QDate(2026, 2, 28), QTime(9, 30), Qt::UTC),
            .updatedAt = QDateTime(QDate(2026, 3, 1), QTime(0, 0), Qt::UTC)};
}

TEST(Errors, SayWhatTheyAreAbout)
{
    const QUuid id(u"5a3f0e1c-8c7b-4e57-9b1f-0123456789ab"_s);
    EXPECT_EQ(errorMessage(Error::invalidPath(PathViolation::parentTraversal)),
              u"Chemin invalide (parentTraversal)."_s);
    EXPECT_EQ(errorMessage(Error::skillNotFound(id)),
              u"Skill introuvable : 5A3F0E1C-8C7B-4E57-9B1F-0123456789AB"_s);
    EXPECT_EQ(errorMessage(Error::unresolvedCollisions({id, id})),
              u"2 collision(s) doivent être résolues avant l’import."_s);
    EXPECT_EQ(errorMessage(Error::partialSync({TargetKind::claude, TargetKind::codex})),
              u"Synchronisation incomplète : claude, codex."_s);
    EXPECT_FALSE(Error::revisionConflict(3, 5) == Error::revisionConflict(5, 3));
    EXPECT_FALSE(Error::notBootstrapped() == Error::importPlanNotFound());
}

TEST(Validation, RefusesEveryOtherSlug)
{
    const auto violation = [](const QString &slug) {
        return errorOf([&] { WorkspaceValidation::validateSlug(slug); });
    };
    for (const char *slug : {"a", "7", "my-skill", "a-1-b"})
        EXPECT_NO_THROW(WorkspaceValidation::validateSlug(QString::fromUtf8(slug))) << slug;
    EXPECT_NO_THROW(WorkspaceValidation::validateSlug(QString(80, u'a')));

    EXPECT_EQ(violation({}), Error::invalidPath(PathViolation::empty));
    for (const char *slug : {"-x", "x-", "a--b", "My-Skill", "été", "a_b", "a.b", "a b", "..", "a/b"})
        EXPECT_EQ(violation(QString::fromUtf8(slug)), Error::invalidPath(PathViolation::invalidSlug)) << slug;
    EXPECT_EQ(violation(QString(81, u'a')), Error::invalidPath(PathViolation::invalidSlug));
}

TEST(Validation, NamesTheFirstViolationOfAPath)
{
    using namespace std::string_literals;
    for (const char *path : {"docs/guide.md", "a//b", "./a", "a/", "..a", ".vornelx"})
        EXPECT_NO_THROW(WorkspaceValidation::validateRelativePath(path)) << path;
    const std::vector<std::pair<std::string, PathViolation>> violations{
        {"", PathViolation::empty},
        {"/etc/../x", PathViolation::absolute},
        {"a/../b\0"s, PathViolation::nullByte},
        {"a/../.vornel", PathViolation::parentTraversal},
        {"x/.vornel/y", PathViolation::reserved},
    };
    for (const auto &[path, expected] : violations)
        EXPECT_EQ(errorOf([&, &text = path] { WorkspaceValidation::validateRelativePath(text); }),
                  Error::invalidPath(expected))
            << path;
}

TEST(Json, WritesAManifestSortedAndReadsItBackEqual)
{
    const QByteArray document = RecordJson::document(RecordJson::encode(sampleManifest()));
    EXPECT_EQ(RecordJson::decodeDocument<SkillManifest>(document), sampleManifest());
    EXPECT_LT(document.indexOf("\"category\""), document.indexOf("\"createdAt\""));
    for (const char *text : {"\"5A3F0E1C-8C7B-4E57-9B1F-0123456789AB\"", "\"2026-02-28T09:30:00Z\"",
                             "Démo / essai", "9007199254740993", "\"maturity\": \"ready\""})
        EXPECT_TRUE(document.contains(text)) << text << " in " << document.constData();

    SkillManifest marked = sampleManifest();
    marked.displayName = u"\uFEFFmarque d’ordre\uFEFF"_s;
    marked.tags = {u"\uFEFF"_s};
    EXPECT_EQ(RecordJson::decodeDocument<SkillManifest>(RecordJson::document(RecordJson::encode(marked))),
              marked);
}

TEST(Json, RefusesAManifestOfWhichAnyFieldIsMissingOrWrong)
{
    const QJsonObject good = RecordJson::encode(sampleManifest()).toObject();
    const auto decodes = [](const QJsonObject &object) {
        return RecordJson::decodeDocument<SkillManifest>(RecordJson::document(object)).has_value();
    };
    ASSERT_TRUE(decodes(good));
    for (const QString &key : good.keys()) {
        QJsonObject lacking = good;
        lacking.remove(key);
        EXPECT_FALSE(decodes(lacking)) << key.toStdString();
        for (const QJsonValue &wrong : {QJsonValue(QJsonValue::Null), QJsonValue(1.5), QJsonValue(true),
                                        QJsonValue(QJsonObject()), QJsonValue(QJsonArray{1})}) {
            QJsonObject mistyped = good;
            mistyped[key] = wrong;
            EXPECT_FALSE(decodes(mistyped)) << key.toStdString();
        }
    }
    const std::vector<std::pair<const char *, const char *>> unacceptable{
        {"maturity", "Ready"},
        {"maturity", "vornel::Maturity::ready"},
        {"id", "{5A3F0E1C-8C7B-4E57-9B1F-0123456789AB}"},
        {"id", "5A3F0E1C8C7B4E579B1F0123456789AB"},
        {"id", "nonsense"},
        {"createdAt", "2026-02-28"},
        {"createdAt", "2026-02-28T09:30:00"},
        {"createdAt", "2026-02-28T09:30:00.5Z"},
        {"createdAt", "2026-02-30T09:30:00Z"},
        {"createdAt", "9999-12-31T23:59:59-10:00"},
        {"createdAt", "2026-02-28T24:00:00Z"},
        {"createdAt", "2026-02-28T99:99:99Z"},
        {"createdAt", "2026-02-28T09:30:00+99:99"},
    };
    for (const auto &[key, text] : unacceptable) {
        QJsonObject object = good;
        object[QLatin1String(key)] = QLatin1String(text);
        EXPECT_FALSE(decodes(object)) << key << " = " << text;
    }
    QJsonObject withOffset = good;
    withOffset[u"createdAt"_s] = u"2026-02-28T11:00:00+01:30"_s;
    EXPECT_EQ(RecordJson::decodeDocument<SkillManifest>(RecordJson::document(withOffset)), sampleManifest());
    EXPECT_FALSE(RecordJson::decodeDocument<SkillManifest>(QByteArray(5000, '[')).has_value());
    EXPECT_EQ(dateFromText(dateText(instantAt(253'402'300'799))), instantAt(253'402'300'799));
    EXPECT_EQ(errorOf([] { instantAt(253'402'300'800); }),
              integrity(u"L’horloge de l’ordinateur est réglée au-delà de l’année 9999."_s));
}

TEST(Text, IsFoldedAndOrderedAsAReaderExpects)
{
    EXPECT_EQ(LocaleText::folded(u"ÉTÉ Ça"_s), u"ete ca"_s);
    for (char16_t c = 0; c < 0xFFFF; ++c) { // a combining mark separates the texts that are searched
        for (const QChar letter : LocaleText::folded(QString(1, QChar(c))))
            ASSERT_NE(letter.category(), QChar::Mark_NonSpacing) << int(c);
    }
    EXPECT_EQ(LocaleText::identifierFromTitle(u" Œuvre d’Ǽsir : Maßstab !"_s), u"oeuvre-d-aesir-massstab"_s);
    EXPECT_TRUE(LocaleText::sortKey(u"skill 9"_s) < LocaleText::sortKey(u"Skill 10"_s));
    EXPECT_TRUE(LocaleText::sortKey(u"été"_s) < LocaleText::sortKey(u"Zèbre"_s));
    const QStringList texts{
        u"e\u0301👩‍👧"_s, u"l’été\r\nà\u0300\n\r"_s, u"\u0600a🇫🇷🇫🇷©\u200D®"_s, u"각ก็\u0301"_s, {}};
    for (const QString &text : texts) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
        int count = 0;
        while (finder.toNextBoundary() != -1)
            ++count;
        EXPECT_EQ(LocaleText::characterCount(text), count) << text.toStdString();
    }
    EXPECT_EQ(
        TagRules::normalizedTags({u" Foo"_s, u"foo"_s, u" "_s, u"Bar"_s, u"v9"_s, u"École"_s, u"V10"_s}),
        (QStringList{u"bar"_s, u"école"_s, u"foo"_s, u"v10"_s, u"v9"_s}));
}

TEST(Text, YieldsTheMetadataOfASkill)
{
    const auto metadata = [](const char16_t *text) {
        const auto [name, summary] =
            SkillText::frontmatterMetadata(QString::fromUtf16(text), u"pdf--tools"_s);
        return name + u'|' + summary;
    };
    EXPECT_EQ(metadata(u"---\nname: \"A\" \r\ndescription: d\n---\n"), u"\"A\"|d"_s);
    EXPECT_EQ(metadata(u"name: a\nname: b\n name: c\nName: d"), u"b|"_s);
    EXPECT_EQ(metadata(u"name:   \ndescription:"), u"Pdf Tools|"_s);
}

TEST(Text, OfANewSkillIsReadBackAsItIsByYaml)
{
    const auto headFor = [](const QString &summary) {
        CreateSkillRequest request;
        request.slug = u"demo"_s;
        request.summary = summary;
        return readableSkillText(request).section(u'\n', 2, 2).mid(QStringLiteral("description: ").size());
    };
    for (const QString &plain : {u"3 outils d’audit"_s, u"a:b#c \"d\" -e"_s, u"-x"_s, u"nothing"_s})
        EXPECT_EQ(headFor(plain), plain);
    for (const QString &quoted : {u""_s, u"Audit: utile"_s, u"fin:"_s, u"a #b"_s, u"- a"_s, u"[a]"_s,
                                  u"’a’ "_s, u"2026"_s, u"-1.5e3"_s, u"0x1F"_s, u"2026-01-02 12:30:00 -5"_s,
                                  u"12:30"_s, u".inf"_s, u"Null"_s, u"no"_s, u"~"_s})
        EXPECT_EQ(headFor(quoted), u'"' + quoted + u'"');
    EXPECT_EQ(headFor(u"\"a\"\\\n\u2028"_s), uR"("\"a\"\\\u000a\u2028")"_s);
}

TEST(Wording, CountsNewSkillsByAssistant)
{
    const NewSkill a{TargetKind::claude, u"a"_s, false};
    const NewSkill b{TargetKind::claude, u"b"_s, true};
    const NewSkill c{TargetKind::codex, u"c"_s, true};
    EXPECT_EQ(Wording::newSkills({}), QString());
    EXPECT_EQ(Wording::newSkills({a}), u"1 nouvelle compétence chez Claude"_s);
    EXPECT_EQ(Wording::newSkills({b, c, a}),
              u"2 nouvelles compétences chez Claude et 1 chez Codex. «\u00A0b\u00A0» et "
              "«\u00A0c\u00A0» sont dans la corbeille."_s);
    EXPECT_EQ(Wording::newSkills({c}),
              u"1 nouvelle compétence chez Codex. «\u00A0c\u00A0» est dans la corbeille."_s);
}

TEST(Wording, TellsAgesMomentsSizesAndNumbers)
{
    const QDateTime now(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    constexpr qint64 day = 86'400;
    const std::vector<std::pair<qint64, QString>> ages{
        {-5, u"à l’instant"_s},           {59, u"à l’instant"_s},         {60, u"il y a 1 minute"_s},
        {3'599, u"il y a 59 minutes"_s},  {3'600, u"il y a 1 heure"_s},   {day - 1, u"il y a 23 heures"_s},
        {day, u"il y a 1 jour"_s},        {3 * day, u"il y a 3 jours"_s}, {30 * day, u"il y a 1 mois"_s},
        {364 * day, u"il y a 12 mois"_s}, {365 * day, u"il y a 1 an"_s},  {900 * day, u"il y a 2 ans"_s},
    };
    for (const auto &[seconds, text] : ages)
        EXPECT_EQ(Wording::age(now.addSecs(-seconds), now), text) << seconds;
    const QDateTime noon(QDate(2026, 3, 12), QTime(12, 0));
    EXPECT_EQ(Wording::moment(noon.addDays(-6), noon), u"il y a 6 jours"_s);
    EXPECT_EQ(Wording::moment(noon.addDays(-7), noon), u"le 5 mars 2026"_s);
    EXPECT_EQ(Wording::moment(QDateTime(QDate(2025, 8, 1), QTime(12, 0)), noon), u"le 1er août 2025"_s);
    EXPECT_EQ(Wording::dayAndTime(QDateTime(QDate(2026, 3, 1), QTime(9, 5)).toUTC(), noon),
              u"1er mars à 09:05"_s);
    EXPECT_EQ(Wording::dayAndTime(QDateTime(QDate(2025, 12, 31), QTime(14, 32)), noon),
              u"31 décembre 2025 à 14:32"_s);
    EXPECT_EQ(Wording::fileSize(1), u"1\u00A0octet"_s);
    EXPECT_EQ(Wording::fileSize(999), u"999\u00A0octets"_s);
    EXPECT_EQ(Wording::fileSize(1'440), u"1,4\u00A0ko"_s);
    EXPECT_EQ(Wording::fileSize(26'214'400), u"26,2\u00A0Mo"_s);
    EXPECT_EQ(Wording::countedSkills(0), u"0 compétence"_s);
    EXPECT_EQ(Wording::countedSkills(2), u"2 compétences"_s);
}

TEST(Wording, TellsVersions)
{
    const QDateTime now(QDate(2026, 3, 4), QTime(0, 5));
    const auto text = [&](QDateTime date, HistoryKind kind, VersionOrigin origin) {
        return Wording::version(
            {.entry = {}, .kind = kind, .revision = 7, .origin = origin, .date = date.toUTC()}, now);
    };
    const QDateTime yesterday(QDate(2026, 3, 3), QTime(23, 59));
    EXPECT_EQ(text(now, HistoryKind::revision, VersionOrigin::library), u"aujourd’hui 00:05 · révision 7"_s);
    EXPECT_EQ(text(yesterday, HistoryKind::replaced, VersionOrigin::claude),
              u"modifié par Claude, remplacé hier à 23:59"_s);
    EXPECT_EQ(text(yesterday.addDays(-2), HistoryKind::replaced, VersionOrigin::library),
              u"modifié à la main, remplacé le 1er mars à 23:59"_s);
    EXPECT_EQ(text(yesterday.addYears(-1), HistoryKind::revision, VersionOrigin::library),
              u"3 mars 2025 23:59 · révision 7"_s);
}

TEST(CategoryRules, MakeIdentifiersNamesAndColours)
{
    using namespace CategoryRules;
    EXPECT_EQ(categoryIdentifier(u"!?"_s, {u"categorie"_s}), u"categorie-2"_s);
    EXPECT_EQ(categoryIdentifier(QString(39, u'a') + u" bc"_s, {}), QString(39, u'a') + u'-');
    EXPECT_EQ(normalizedCategory(u" Design "_s), u"design"_s);
    EXPECT_EQ(normalizedCategory(u" "_s), SkillCategory::otherID);

    EXPECT_EQ(validatedCategoryName(u' ' + QString(40, u'é') + u'\n'), QString(40, u'é'));
    EXPECT_THROW(validatedCategoryName(QString(41, u'é')), Error);
    for (const char *color : {"", "a1b2c", "a1b2c3d", "a1b2cg", "a1#b2c3"})
        EXPECT_EQ(errorOf([&] { validatedColorHex(QString::fromUtf8(color)); }),
                  integrity(u"La couleur est invalide."_s))
            << color;
}

SkillSummary summary(const char *slug, const char *name, const char *category)
{
    SkillManifest manifest = sampleManifest();
    manifest.slug = QString::fromUtf8(slug);
    manifest.displayName = QString::fromUtf8(name);
    manifest.category = QString::fromUtf8(category);
    return {manifest, SyncState::inSync};
}

QString slugs(const QList<SkillSummary> &skills)
{
    QStringList slugs;
    for (const SkillSummary &skill : skills)
        slugs.append(skill.slug);
    return slugs.join(u' ');
}

LibraryIndex sampleIndex()
{
    return LibraryIndex({summary("z", "Skill 10", "unknown"), summary("b", "skill 9", "design"),
                         summary("a", "Skill 9", "design"), summary("q", "Épée", "Quality"),
                         summary("e", "Etude", "quality")});
}

TEST(LibraryQuery, SearchesEachTextOfASkillByItself)
{
    SkillSummary skill = summary("lame-fine", "Épée", "design");
    skill.tags = {u"réseau"_s, u"web"_s};
    const LibraryIndex index({skill});
    const auto finds = [&index](const QString &search) {
        return !index.filteredSkills({search, {}, {}}).isEmpty();
    };
    for (const QString &search : {u" \r\n\t"_s, u"EPEE"_s, u"e\u0301p"_s, u"lame-"_s, u"resume"_s,
                                  u"DESIGN"_s, u"Reseau\n"_s, u"WEB"_s})
        EXPECT_TRUE(finds(search)) << search.toStdString();
    EXPECT_FALSE(finds(u"webs"_s));
    EXPECT_EQ(LibraryQuery::found({SkillSummary(), skill}, u" RESEAU "_s), QList{skill});
    EXPECT_EQ(LibraryQuery::found({skill}, u" \n"_s), QList{skill});
    for (const QString &between : {u""_s, u"\u0300"_s, u"\uFFFF"_s, QString(QChar::Null)}) {
        EXPECT_FALSE(finds(u"épée"_s + between + u"lame"_s)) << between.toStdString();
        EXPECT_FALSE(finds(u"réseau"_s + between + u"web"_s)) << between.toStdString();
    }
    for (const QString &words : {u"fine ÉPÉE"_s, u"web\u00A0 reseau"_s, u"des\nres sum"_s}) {
        EXPECT_TRUE(finds(words)) << words.toStdString();
        EXPECT_EQ(LibraryQuery::found({SkillSummary(), skill}, words), QList{skill});
        EXPECT_FALSE(finds(words + u" absent"_s)) << words.toStdString();
    }
}

TEST(LibraryQuery, OrdersWhatPassesTheFilter)
{
    const LibraryIndex index = sampleIndex();
    EXPECT_EQ(slugs(index.filteredSkills({})), u"z b a q e"_s);
    EXPECT_EQ(slugs(index.orderedFilteredSkills({})), u"e a b q z"_s);
    EXPECT_EQ(slugs(index.orderedFilteredSkills({u"skill"_s, {}, {}})), u"a b z"_s);
    EXPECT_EQ(slugs(index.orderedFilteredSkills({{}, u"QUALITY"_s, {}})), u"q e"_s);
    EXPECT_EQ(slugs(index.orderedFilteredSkills({{}, u"qualitý"_s, {}})), QString());
    EXPECT_EQ(slugs(index.orderedFilteredSkills({u"etude"_s, u"quality"_s, Maturity::ready})), u"e"_s);
    EXPECT_EQ(slugs(index.orderedFilteredSkills({{}, {}, Maturity::draft})), QString());
    EXPECT_EQ(slugs(LibraryIndex({summary("q", "q", "quality"), summary("d", "d", "design")},
                                 {{u"design"_s, {}, {}, false}, {u"quality"_s, {}, {}, false}})
                        .orderedFilteredSkills({})),
              u"d q"_s);

    SkillSummary tagged = summary("t", "Tagged", "design");
    tagged.tags = {u"api"_s, u"web"_s};
    tagged.updatedAt = QDateTime::fromSecsSinceEpoch(2'000'000'000, Qt::UTC);
    const LibraryIndex more({tagged, summary("b", "B", "quality"), summary("a", "A", "design")});
    EXPECT_EQ(slugs(more.orderedFilteredSkills({.tags = {u"WEB"_s, u"api"_s}})), u"t"_s);
    EXPECT_EQ(slugs(more.orderedFilteredSkills({.tags = {u"web"_s, u"ap"_s}})), QString());
    EXPECT_EQ(slugs(more.orderedFilteredSkills({.order = LibraryOrder::name})), u"a b t"_s);
    EXPECT_EQ(slugs(more.orderedFilteredSkills({.order = LibraryOrder::updated})), u"t a b"_s);

    const SkillSummary upper = summary("A", "Same", "design");
    const SkillSummary lower = summary("a", "same", "design");
    for (const auto &[given, order] :
         {std::pair{QList{upper, lower}, u"A a"_s}, {{lower, upper}, u"a A"_s}}) {
        EXPECT_EQ(slugs(LibraryIndex(given).orderedFilteredSkills({})), order);
        EXPECT_EQ(slugs(LibraryIndex(given).orderedFilteredSkills({{}, u"design"_s, {}})), order);
    }
}

/// The groups of a page as "category shown/total".
QStringList groupsOf(const SkillPage &page)
{
    QStringList texts;
    for (const SkillGroup &group : page.groups)
        texts.append(u"%1 %2/%3"_s.arg(group.category.id).arg(group.skills.size()).arg(group.totalCount));
    return texts;
}

TEST(LibraryQuery, CutsTheOrderedSkillsIntoGroupedPages)
{
    QList<SkillSummary> skills;
    for (int number = 25; number > 0; --number) {
        const QByteArray text = QByteArray::number(number);
        skills.append(summary(text, "Skill " + text, number > 20 ? "quality" : "design"));
    }
    const LibraryIndex index(skills);
    const SkillPage first = index.skillPage({}, 1);
    const SkillPage last = index.skillPage({}, 2);
    EXPECT_EQ(groupsOf(first), QStringList({u"quality 5/5"_s, u"design 19/20"_s}));
    EXPECT_EQ(slugs(first.skills), u"21 22 23 24 25 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19"_s);
    EXPECT_EQ(first.groups[0].category, SkillCategory::defaults()[1]);
    EXPECT_EQ(groupsOf(last), QStringList(u"design 1/20"_s));
    EXPECT_EQ(slugs(last.skills), u"20"_s);
    EXPECT_TRUE(last.pagination == Pagination(25, 24, 2));
    EXPECT_TRUE(index.skillPage({}, 7) == last);
    EXPECT_FALSE(first == last);
    EXPECT_EQ(groupsOf(index.skillPage({u"2"_s, {}, {}}, 1)),
              QStringList({u"quality 5/5"_s, u"design 3/3"_s}));

    const SkillPage withUnknown = sampleIndex().skillPage({}, 1);
    EXPECT_EQ(slugs(withUnknown.skills), u"e a b q z"_s);
    EXPECT_EQ(groupsOf(withUnknown), QStringList({u"quality 1/1"_s, u"design 2/2"_s}));
    EXPECT_EQ(withUnknown.ungroupedCount, 2);
    EXPECT_TRUE(LibraryIndex().skillPage({}, 2) == SkillPage());
}

TEST(LibraryQuery, NamesACategoryForEveryIdentifier)
{
    const SkillCategory design{u"design"_s, u"Design"_s, u"D152F0"_s, false};
    const SkillCategory other{u"other"_s, u"Divers"_s, u"000000"_s, true};
    EXPECT_EQ(LibraryQuery::category({other, design}, u"design"_s), design);
    EXPECT_EQ(LibraryQuery::category({design, other}, u"Design"_s), other);
    EXPECT_EQ(LibraryQuery::category({design}, u"gone"_s),
              (SkillCategory{u"other"_s, u"Autre"_s, u"FFB347"_s, true}));
}

TEST(Pagination, ShowsAnExistingPage)
{
    const auto shown = [](qint64 itemCount, qint64 pageSize, qint64 requestedPage) {
        const Pagination pages(itemCount, pageSize, requestedPage);
        return u"%1/%2: %3-%4 of %5"_s.arg(pages.page())
                   .arg(pages.pageCount())
                   .arg(pages.firstItemNumber())
                   .arg(pages.lastItemNumber())
                   .arg(pages.itemCount()) +
               (pages.hasPreviousPage() ? u" <"_s : QString()) + (pages.hasNextPage() ? u" >"_s : QString());
    };
    EXPECT_EQ(shown(0, 24, 3), u"1/1: 0-0 of 0"_s);
    EXPECT_EQ(shown(24, 24, 2), u"1/1: 1-24 of 24"_s);
    EXPECT_EQ(shown(25, 24, -3), u"1/2: 1-24 of 25 >"_s);
    EXPECT_EQ(shown(25, 24, 7), u"2/2: 25-25 of 25 <"_s);
    EXPECT_EQ(shown(49, 24, 2), u"2/3: 25-48 of 49 < >"_s);
    EXPECT_EQ(shown(-5, 0, 1), u"1/1: 0-0 of 0"_s);
    EXPECT_EQ(shown(3, -1, 2), u"2/3: 2-2 of 3 < >"_s);
    EXPECT_TRUE(Pagination(-5, 24, 9).itemRange().isEmpty());
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    EXPECT_EQ(Pagination(largest - 24, 24, largest).lastItemNumber(), largest - 24);
    EXPECT_EQ(Pagination(0, largest, 1).pageCount(), 1);
    EXPECT_DEATH(Pagination(largest, 24, 1), "");
}

} // namespace
} // namespace vornel
