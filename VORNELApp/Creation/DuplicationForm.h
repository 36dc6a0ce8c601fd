#pragma once

#include "SlugForm.h"

namespace vornel {

/// The identifier of a new skill with the files and properties of another.
class DuplicationForm : public vornel::SlugForm // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT

public:
    using SlugForm::SlugForm;

    /// Begins with an identifier that is free.
    Q_INVOKABLE void begin(QUuid id, const QString &slug);
    void submit() override;

private:
    QUuid m_id;
};

} // namespace vornel
