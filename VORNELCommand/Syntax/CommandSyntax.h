#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace vornel {

/// An option, as a usage states it.
struct OptionSyntax
{
    QString name;
    QString form; ///< the placeholder of its value, "TEXTE" or "claude|codex"; empty for a flag
    bool isRequired = false;
};

/// Whether `value` may be given where a usage has the placeholder `form`: one of the words that it lists, a
/// number for "RÉVISION" or "NOMBRE", days for "DURÉE", a text that isn't empty for "DOSSIER", any text for
/// the others.
bool fits(const QString &value, const QString &form);

/// The options that a usage names. Those with a value are required where they stand outside brackets.
QList<OptionSyntax> optionsOf(const QString &usage);

/// An option common to all commands, as the help states it: "--workspace DOSSIER".
struct CommonOption
{
    QString usage;
    QString meaning;
};

const QList<CommonOption> &commonOptions();

/// A command, as the help states it. All that is known of its syntax is read from `usage`: single words in
/// lower case are its name, others its operands.
struct CommandSyntax
{
    CommandSyntax(QString section, QString usage, QString meaning);

    QString section; ///< of the help
    QString usage;   ///< on one line: "save SKILL --expect RÉVISION --file FICHIER"
    QString meaning;

    QStringList name; ///< one word, or two: "category", "create"
    QList<OptionSyntax> options;
    QStringList operands;           ///< their placeholders; the last one may be repeated if it ends in "…"
    qsizetype requiredOperands = 0; ///< how many of them stand outside brackets
    QString standIn; ///< the flag, if any, that stands for all operands: "all" in "(SKILL… | --all)"
};

} // namespace vornel
