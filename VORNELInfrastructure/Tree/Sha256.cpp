#include "Sha256.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <array>
#include <memory>
#include <span>
#include <stdexcept>
#include <string_view>

namespace vornel {

namespace {

/// Looked up once: a look-up for each digest would cost more than hashing a small file.
const EVP_MD *sha256()
{
    static const EVP_MD *const algorithm = [] {
        // Threads may end after the library's own clean-up at exit, and would then leak their contexts.
        OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr);
        return EVP_MD_fetch(nullptr, "SHA256", nullptr);
    }();
    return algorithm;
}

void require(int succeeded)
{
    if (succeeded != 1)
        throw std::runtime_error("SHA-256 is not available");
}

EVP_MD_CTX *threadContext()
{
    struct Free
    {
        void operator()(EVP_MD_CTX *context) const { EVP_MD_CTX_free(context); }
    };
    thread_local const std::unique_ptr<EVP_MD_CTX, Free> context(EVP_MD_CTX_new());
    return context.get();
}

} // namespace

Sha256::Sha256() : m_context(threadContext())
{
    require(EVP_DigestInit_ex2(m_context, sha256(), nullptr));
}

void Sha256::update(QByteArrayView bytes)
{
    require(EVP_DigestUpdate(m_context, bytes.data(), static_cast<size_t>(bytes.size())));
}

std::string Sha256::finish()
{
    static constexpr std::string_view hexDigits = "0123456789abcdef";
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int size = 0;
    require(EVP_DigestFinal_ex(m_context, digest.data(), &size));

    std::string text(2UL * size, '0');
    char *next = text.data();
    for (const unsigned char byte : std::span(digest).first(size)) {
        *next++ = hexDigits[byte >> 4U];
        *next++ = hexDigits[byte & 0xFU];
    }
    return text;
}

} // namespace vornel
