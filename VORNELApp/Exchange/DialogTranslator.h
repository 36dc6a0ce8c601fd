#pragma once

#include <QTranslator>

namespace vornel {

/// Says in French what Qt's own file dialogs say, which stand in where the desktop has none.
class DialogTranslator : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override { return false; }
};

} // namespace vornel
