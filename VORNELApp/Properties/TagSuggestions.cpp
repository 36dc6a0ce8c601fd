#include "TagSuggestions.h"

#include <VORNELCore/Library/LocaleText.h>

#include <QHash>

#include <algorithm>

namespace vornel {

void TagSuggestions::setModel(AppModel *model)
{
    m_model = model;
    connect(model, &AppModel::overviewChanged, this, &TagSuggestions::find);
    find();
}

void TagSuggestions::setTyped(const QString &typed)
{
    m_typed = typed;
    find();
}

void TagSuggestions::setChosen(const QStringList &tags)
{
    m_chosen = tags;
    find();
}

void TagSuggestions::find()
{
    constexpr qsizetype mostTags = 6;
    if (m_model == nullptr)
        return;
    QHash<QString, int> uses;
    for (const SkillSummary &skill : m_model->skills(Destination::library)) {
        for (const QString &tag : skill.tags)
            ++uses[tag];
    }
    const QString typed = LocaleText::folded(m_typed.trimmed());
    QStringList tags = uses.keys();
    tags.removeIf([&](const QString &tag) {
        return m_chosen.contains(tag) || !LocaleText::folded(tag).contains(typed);
    });
    std::ranges::sort(tags, [&](const QString &a, const QString &b) {
        const auto rank = [&](const QString &tag) {
            return std::pair(!LocaleText::folded(tag).startsWith(typed), -uses.value(tag));
        };
        return rank(a) != rank(b) ? rank(a) < rank(b) : LocaleText::comesBefore(a, b);
    });
    m_tags = tags.first(std::min(mostTags, tags.size()));
    Q_EMIT changed();
}

} // namespace vornel
