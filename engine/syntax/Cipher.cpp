#include "Cipher.h"

#include "engine/files/EngineError.h"

#include <qpdf/QPDFCryptoProvider.hh>

#include <algorithm>
#include <array>

namespace engine {

namespace {

constexpr std::size_t blockSize = QPDFCryptoImpl::rijndael_buf_size;

using Block = std::array<unsigned char, blockSize>;

unsigned char* bytesOf(std::string& text)
{
    return reinterpret_cast<unsigned char*>(text.data());
}

std::string rc4(std::string key, std::string plain)
{
    const auto crypto = QPDFCryptoProvider::getImpl();
    std::string result(plain.size(), '\0');
    crypto->RC4_init(bytesOf(key), static_cast<int>(key.size()));
    // Not every provider can work in place.
    crypto->RC4_process(bytesOf(plain), plain.size(), bytesOf(result));
    crypto->RC4_finalize();
    return result;
}

std::string aes(std::string key, std::string plain)
{
    if (key.size() != 16 && key.size() != 32)
        throw EngineError(ErrorCode::CannotAppend, "a key of a length that AES does not have");
    const std::size_t padding = blockSize - plain.size() % blockSize;
    plain.append(padding, static_cast<char>(padding));
    const auto crypto = QPDFCryptoProvider::getImpl();
    Block vector;
    crypto->provideRandomData(vector.data(), vector.size());
    std::string result(vector.begin(), vector.end());
    crypto->rijndael_init(true, bytesOf(key), key.size(), true, vector.data());
    Block in;
    Block out;
    for (std::size_t start = 0; start < plain.size(); start += blockSize) {
        std::copy_n(plain.begin() + static_cast<std::ptrdiff_t>(start), blockSize, in.begin());
        crypto->rijndael_process(in.data(), out.data());
        result.append(out.begin(), out.end());
    }
    crypto->rijndael_finalize();
    return result;
}

} // namespace

Cipher::Cipher(QPDF& pdf, Use use)
{
    int permissions = 0;
    auto streams = QPDF::e_none;
    auto strings = QPDF::e_none;
    auto files = QPDF::e_none;
    if (!pdf.isEncrypted(m_revision, permissions, m_version, streams, strings, files))
        return;
    choose(m_version, use == Use::Strings ? strings : streams);
    m_fileKey = pdf.getEncryptionKey();
}

void Cipher::choose(int version, QPDF::encryption_method_e method)
{
    // Below version 4 there are no crypt filters, and libqpdf reports no method: it is always RC4.
    if (version < 4 || method == QPDF::e_rc4)
        m_method = Method::Rc4;
    else if (method == QPDF::e_aes || method == QPDF::e_aesv3)
        m_method = Method::Aes;
    else if (method != QPDF::e_none)
        throw EngineError(ErrorCode::CannotAppend, "an unknown method encrypts it");
}

std::string Cipher::encrypted(const std::string& plain, QPDFObjGen object) const
{
    if (m_method == Method::None)
        return plain;
    const bool isAes = m_method == Method::Aes;
    const std::string key =
        QPDF::compute_data_key(m_fileKey, object.getObj(), object.getGen(), isAes, m_version, m_revision);
    return isAes ? aes(key, plain) : rc4(key, plain);
}

} // namespace engine
