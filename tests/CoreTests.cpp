#include "Scratch.h"

#include <VORNELCore/ErrorMessage.h>
#include <VORNELCore/LibraryQuery.h>
#include <VORNELCore/LocaleText.h>
#include <VORNELCore/RecordJson.h>
#include <VORNELCore/SerializedForms.h>
#include <VORNELCore/WorkspaceValidation.h>
#include <VORNELInfrastructure/CategoryRules.h>
#include <VORNELInfrastructure/DefaultWorkspaceLocator.h>
#include <VORNELInfrastructure/SkillText.h>
#include <VORNELInfrastructure/WorkspaceRoots.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace vornel {
namespace {

using Error = VORNELWorkspaceError;

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

TEST(Errors, SayExactlyTheirMessages)
{
    const QUuid id(u"5a3f0e1c-8c7b-4e57-9b1f-0123456789ab"_s);
    const std::vector<std::pair<Error, const char16_t *>> messages{
        {Error::invalidPath(PathViolation::parentTraversal), u"Chemin invalide (parentTraversal)."},
        {Error::symlinkUnsupported(u"/l"_s), u"Les liens symboliques ne sont pas pris en charge : /l"},
        {Error::missingSkillFile(u"x"_s), u"Le skill x ne contient pas de fichier SKILL.md."},
        {Error::malformedManifest(u"/m"_s), u"Le manifeste est invalide : /m"},
        {Error::skillNotFound(id), u"Skill introuvable : 5A3F0E1C-8C7B-4E57-9B1F-0123456789AB"},
        {Error::duplicateSlug(u"a"_s), u"Le slug a existe déjà."},
        {Error::revisionConflict(3, 5), u"Révision obsolète (attendue 3, actuelle 5)."},
        {Error::collisionNotFound(id),
         u"Collision d’import introuvable : 5A3F0E1C-8C7B-4E57-9B1F-0123456789AB"},
        {Error::unresolvedCollisions({id, id}), u"2 collision(s) doivent être résolues avant l’import."},
        {Error::unsafeImport(u"d"_s), u"Le dossier d ne peut pas être importé en sécurité."},
        {Error::partialSync({TargetKind::claude, TargetKind::codex}),
         u"Synchronisation incomplète : claude, codex."},
        {Error::partialSync({}), u"Synchronisation incomplète : ."},
        {Error::integrityFailure(u"r"_s), u"Échec d’intégrité : r"},
        {Error::notBootstrapped(), u"Le workspace VORNEL n’est pas initialisé."},
        {Error::importPlanNotFound(), u"Le plan d’import n’existe plus."},
    };
    for (const auto &[error, message] : messages) {
        EXPECT_EQ(error.errorDescription(), QString::fromUtf16(message));
        EXPECT_EQ(errorMessage(error), QString::fromUtf16(message));
    }
    EXPECT_EQ(Error::revisionConflict(3, 5), Error::revisionConflict(3, 5));
    EXPECT_FALSE(Error::revisionConflict(3, 5) == Error::revisionConflict(5, 3));
    EXPECT_FALSE(Error::notBootstrapped() == Error::importPlanNotFound());
}

TEST(Errors, OfTheFileSystemNameThePlaceInFrench)
{
    const std::filesystem::filesystem_error full("write", "/tmp/x",
                                                 std::error_code(ENOSPC, std::system_category()));
    EXPECT_EQ(errorMessage(full), u"Le volume est plein\u00A0: /tmp/x"_s);
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
}

TEST(Records, AreEqualAndHashedOverAllFields)
{
    ImportPlan plan;
    ImportCollision collision;
    plan.collisions = {collision, collision, collision};
    EXPECT_EQ(plan.unresolvedCollisionCount(), 3);
    plan.collisions[1].choice = CollisionChoice::codex;
    EXPECT_EQ(plan.unresolvedCollisionCount(), 2);
    EXPECT_FALSE(plan.isReadyToCommit());
    EXPECT_TRUE(ImportPlan().isReadyToCommit());

    EXPECT_FALSE(plan.collisions[0] == plan.collisions[1]);
    EXPECT_NE(qHash(plan.collisions[0]), qHash(plan.collisions[1]));
    ImportCandidate candidate;
    ImportCandidate other = candidate;
    other.id = QUuid::createUuid();
    EXPECT_FALSE(candidate == other);
    EXPECT_EQ(RecordJson::encode(plan).toObject()[u"collisions"][0][u"choice"], QJsonValue::Null);
    EXPECT_EQ(RecordJson::encode(plan).toObject()[u"collisions"][1][u"choice"], u"codex"_s);
    EXPECT_EQ(fromRawValue<CollisionChoice>(u"both"_s), std::nullopt);
}

TEST(Text, IsFoldedAndOrderedAsAReaderExpects)
{
    EXPECT_EQ(LocaleText::folded(u"ÉTÉ Ça"_s), u"ete ca"_s);
    EXPECT_LT(LocaleText::standardCompare(u"skill 9"_s, u"Skill 10"_s), 0);
    EXPECT_LT(LocaleText::standardCompare(u"été"_s, u"Zèbre"_s), 0);
    EXPECT_EQ(LocaleText::characterCount(u"e\u0301👩‍👧"_s), 2);
    EXPECT_EQ(SkillText::normalizedTags({u" Foo"_s, u"foo"_s, u" "_s, u"Bar"_s}),
              (QStringList{u"bar"_s, u"foo"_s}));
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
    SkillManifest manifest = sampleManifest();
    manifest.summary.clear();
    EXPECT_EQ(SkillText::defaultSkillMD(manifest),
              u"---\nname: demo\ndescription: \n---\n\n# Démo / essai\n\n"_s
              u"Décrivez ici le fonctionnement de cette compétence."_s);
}

TEST(CategoryRules, MakeIdentifiersNamesAndColours)
{
    using namespace CategoryRules;
    const QString name = u"Équipe & Outils"_s;
    EXPECT_EQ(categoryIdentifier(name, {}), u"equipe-outils"_s);
    EXPECT_EQ(categoryIdentifier(name, {u"equipe-outils"_s}), u"equipe-outils-2"_s);
    EXPECT_EQ(categoryIdentifier(u"!?"_s, {u"categorie"_s}), u"categorie-2"_s);
    EXPECT_EQ(categoryIdentifier(QString(39, u'a') + u" bc"_s, {}), QString(39, u'a') + u'-');
    EXPECT_EQ(normalizedCategory(u" Design "_s), u"design"_s);
    EXPECT_EQ(normalizedCategory(u" "_s), SkillCategory::otherID);

    EXPECT_EQ(validatedCategoryName(u' ' + QString(40, u'é') + u'\n'), QString(40, u'é'));
    EXPECT_THROW(validatedCategoryName(QString(41, u'é')), Error);
    EXPECT_EQ(validatedColorHex(u" #a1b2c3"_s), u"A1B2C3"_s);
    for (const char *color : {"", "a1b2c", "a1b2c3d", "a1b2cg", "a1#b2c3"})
        EXPECT_EQ(errorOf([&] { validatedColorHex(QString::fromUtf8(color)); }),
                  integrity(u"La couleur est invalide."_s))
            << color;
}

TEST(Roots, ComeFromAbsoluteVariablesOnly)
{
    const std::map<std::string, const char *> variables{{"VORNEL_WORKSPACE_PATH", "relative/dir"},
                                                        {"VORNEL_CLAUDE_SKILLS_PATH", "/tmp/w/..//x/"},
                                                        {"VORNEL_CODEX_SKILLS_PATH", ""}};
    const Environment environment = [&variables](const char *variable) {
        const auto found = variables.find(variable);
        return found == variables.end() ? nullptr : found->second;
    };
    const WorkspaceRoots roots =
        WorkspaceRoots::fromEnvironment(environment, "/home/u", DefaultWorkspaceLocator("/home/u"));
    EXPECT_EQ(roots.workspace, "/home/u/VORNEL");
    EXPECT_EQ(roots.claude, "/tmp/x");
    EXPECT_EQ(roots.codex, "/home/u/.codex/skills");
}

SkillSummary summary(const char *slug, const char *name, const char *category)
{
    SkillManifest manifest = sampleManifest();
    manifest.slug = QString::fromUtf8(slug);
    manifest.displayName = QString::fromUtf8(name);
    manifest.category = QString::fromUtf8(category);
    return {manifest, SyncState::inSync};
}

TEST(LibraryQuery, FiltersAndOrders)
{
    WorkspaceOverview overview;
    overview.categories = SkillCategory::defaults();
    overview.skills = {summary("z", "Skill 10", "unknown"), summary("b", "skill 9", "design"),
                       summary("a", "Skill 9", "design"), summary("q", "Épée", "Quality")};
    overview.skills[1].tags = {u"réseau"_s};
    const auto slugs = [&overview](const LibraryQuery::Filter &filter) {
        QString text;
        for (const SkillSummary &skill : LibraryQuery::orderedFilteredSkills(overview, filter))
            text += skill.slug;
        return text;
    };
    EXPECT_EQ(slugs({u" \n"_s, {}, {}}), u"abqz"_s);
    EXPECT_EQ(slugs({u"epee"_s, {}, {}}), u"q"_s);
    EXPECT_EQ(slugs({u"RESEAU "_s, {}, {}}), u"b"_s);
    EXPECT_EQ(slugs({{}, u"quality"_s, {}}), u"q"_s);
    EXPECT_EQ(slugs({{}, {}, Maturity::draft}), QString());

    overview.skills[0].syncState = SyncState::failed;
    overview.skills[1].syncState = SyncState::unknown;
    EXPECT_EQ(LibraryQuery::needsAttention(overview), QList{overview.skills[0]});
}

} // namespace
} // namespace vornel
