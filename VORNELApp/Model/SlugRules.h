#pragma once

#include "AppModel.h"

/// What may be said of a skill's identifier while it is typed.
namespace vornel::SlugRules {

/// Why no skill can have such an identifier; empty where one can.
QString formProblem(const QString &slug);

/// Whether a skill of the library or the trash other than `owner` has it, whatever the case.
bool isTaken(const AppModel &model, const QString &slug, const QUuid &owner = {});

/// What the user reads about an identifier that is taken.
QString takenProblem(const AppModel &model, const QString &slug);

} // namespace vornel::SlugRules
