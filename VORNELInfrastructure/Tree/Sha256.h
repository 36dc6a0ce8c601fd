#pragma once

#include <QByteArrayView>

#include <string>

struct evp_md_ctx_st;

namespace vornel {

/// A SHA-256 in the making, one at a time for each thread: they share the thread's context, which is costly
/// to create, so a new digest gives up an unfinished one.
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
