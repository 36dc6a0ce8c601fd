#pragma once

#include <QByteArrayView>

namespace vornel {

/// Whether bytes are shown and joined as a text: UTF-8 without null characters.
inline bool isText(QByteArrayView bytes)
{
    return !bytes.contains('\0') && bytes.isValidUtf8();
}

} // namespace vornel
