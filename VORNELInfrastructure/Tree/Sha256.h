#pragma once

#include <QByteArrayView>

#include <string>

struct evp_md_ctx_st;

namespace vornel {

/// A running SHA-256. All digests of a thread share one context, which is costly to make, so a thread runs
/// one digest at a time: a new one ends the last.
class Sha256
{
public:
    Sha256();

    void update(QByteArrayView bytes);

    /// The digest of all that was added, as 64 lower-case hexadecimal digits. Ends the digest.
    std::string finish();

private:
    evp_md_ctx_st *m_context; ///< the thread's
};

} // namespace vornel
