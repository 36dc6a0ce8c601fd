#pragma once

#include <VORNELApp/Creation/SlugForm.h>

namespace vornel {

/// The identifier under which a copy that was set aside becomes a skill of its own.
class SetAsideForm : public vornel::SlugForm // in full, for the tools that read the types of QML
{
    Q_OBJECT
    QML_ELEMENT

public:
    using SlugForm::SlugForm;

    /// Begins with a copy's own slug.
    Q_INVOKABLE void begin(const QString &copy, const QString &slug);
    void submit() override;

private:
    QString m_copy;
};

} // namespace vornel
