#pragma once

#include <QCollator>
#include <QString>

/// Text as the user's language sees it. In the C locale, the language is French.
namespace vornel::LocaleText {

/// Whether `a` comes before `b` as in a dictionary: by language, without regard to case, digits one by one.
bool comesBefore(const QString &a, const QString &b);

/// A key that orders texts as a file browser does: by language, without regard to case, digits by value.
QCollatorSortKey sortKey(const QString &text);

/// The form in which texts are searched: without case and without diacritics ("Éte" becomes "ete").
QString folded(const QString &text);

/// The form in which names are compared: without case, diacritics kept.
QString caseless(const QString &text);

/// The number of characters that a reader sees, which combining marks and emoji sequences don't raise.
int characterCount(const QString &text);

/// The first characters of a text, as a reader counts them.
QString truncated(const QString &text, int characters);

/// The words of a hyphenated identifier, each with its first letter in upper case: "pdf-tools" gives
/// "Pdf Tools".
QString titleFromIdentifier(const QString &identifier);

/// The identifier that a name suggests: "Audit de sécurité" gives "audit-de-securite". May be empty.
QString identifierFromTitle(const QString &title);

} // namespace vornel::LocaleText
