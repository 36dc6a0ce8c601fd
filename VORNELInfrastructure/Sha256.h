#pragma once

#include <QByteArrayView>

#include <memory>
#include <string>

struct evp_md_ctx_st;

namespace vornel {

/// A running SHA-256.
class Sha256
{
public:
    Sha256();

    void update(QByteArrayView bytes);

    /// The digest of all that was added, as 64 lower-case hexadecimal digits. The next `update` starts anew.
    std::string finish();

private:
    struct Free
    {
        void operator()(evp_md_ctx_st *context) const;
    };

    void restart();

    std::unique_ptr<evp_md_ctx_st, Free> m_context;
};

} // namespace vornel
