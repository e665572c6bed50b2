#include "app/base/sha256.h"

#include <openssl/evp.h>

namespace vl::app {

struct Sha256::Context
{
    EVP_MD_CTX *sum = EVP_MD_CTX_new();
    bool good = true;

    Context() { good = sum && EVP_DigestInit_ex(sum, EVP_sha256(), nullptr) == 1; }
    ~Context() { EVP_MD_CTX_free(sum); }
    Q_DISABLE_COPY_MOVE(Context)
};

Sha256::Sha256()
    : m_context(std::make_unique<Context>())
{
    Q_ASSERT(m_context->good);
}

Sha256::~Sha256() = default;

void Sha256::add(QByteArrayView bytes)
{
    m_context->good = m_context->good
                      && EVP_DigestUpdate(m_context->sum, bytes.data(), size_t(bytes.size())) == 1;
}

QByteArray Sha256::finish()
{
    QByteArray digest(32, '\0');
    unsigned int length = 0;
    auto *data = reinterpret_cast<unsigned char *>(digest.data());
    m_context->good = m_context->good && EVP_DigestFinal_ex(m_context->sum, data, &length) == 1;
    // Without memory there is no sum; an empty one equals no other, so nothing is taken for the
    // same.
    return m_context->good ? digest.toHex() : QByteArray();
}

QByteArray Sha256::of(QByteArrayView bytes)
{
    Sha256 sum;
    sum.add(bytes);
    return sum.finish();
}

} // namespace vl::app
