#include "wxemailmessageid.h"

#include <fcntl.h>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <sys/stat.h>
#include <unistd.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>

#include <memory>

namespace {

constexpr size_t KEY_BYTES = 32;
constexpr size_t IV_BYTES = 12;
constexpr size_t TAG_BYTES = 16;

struct CtxDeleter {
    void operator()(EVP_CIPHER_CTX* ctx) const { EVP_CIPHER_CTX_free(ctx); }
};
using Ctx = std::unique_ptr<EVP_CIPHER_CTX, CtxDeleter>;

const unsigned char* bytes(const std::string& s) { return reinterpret_cast<const unsigned char*>(s.data()); }
unsigned char* bytes(std::string& s) { return reinterpret_cast<unsigned char*>(&s[0]); }

// Writes a new key into `path`, readable by its owner only.
bool writeNewKey(const std::string& path, std::string* key) {
    std::string k(KEY_BYTES, '\0');
    if (RAND_bytes(bytes(k), KEY_BYTES) != 1) return false;
    ::unlink(path.c_str());
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (fd < 0) return false;
    const bool ok = ::write(fd, k.data(), k.size()) == static_cast<ssize_t>(k.size());
    if (::close(fd) != 0 || !ok) {
        ::unlink(path.c_str());
        return false;
    }
    *key = std::move(k);
    return true;
}

}  // namespace

wxEmailMessageID::wxEmailMessageID(const wxString& keyPath) : m_keyPath(keyPath) {}

wxString wxEmailMessageID::DefaultKeyPath() { return wxStandardPaths::Get().GetUserDataDir() + "/smtp.klic"; }

bool wxEmailMessageID::LoadKey(bool create) {
    if (m_key.size() == KEY_BYTES) return true;
    const std::string path(m_keyPath.utf8_str());
    const int fd = ::open(path.c_str(), O_RDONLY);
    if (fd >= 0) {
        std::string k(KEY_BYTES + 1, '\0');
        const ssize_t n = ::read(fd, &k[0], k.size());
        ::close(fd);
        if (n == static_cast<ssize_t>(KEY_BYTES)) {
            k.resize(KEY_BYTES);
            m_key = std::move(k);
            return true;
        }
    }
    if (!create) return false;
    // A missing or damaged key: passwords enciphered with it are lost either way, so a new
    // key is made (the user types the password again).
    const wxFileName name(m_keyPath);
    if (!name.DirExists()) wxFileName::Mkdir(name.GetPath(), 0700, wxPATH_MKDIR_FULL);
    return writeNewKey(path, &m_key);
}

wxString wxEmailMessageID::Encrypt(const wxString& password) {
    if (password.empty() || !LoadKey(true)) return wxString();
    const wxScopedCharBuffer plain = password.utf8_str();
    std::string iv(IV_BYTES, '\0');
    if (RAND_bytes(bytes(iv), IV_BYTES) != 1) return wxString();
    Ctx ctx(EVP_CIPHER_CTX_new());
    std::string out(plain.length() + 16, '\0');
    std::string tag(TAG_BYTES, '\0');
    int len = 0, fin = 0;
    if (!ctx || EVP_EncryptInit_ex(ctx.get(), EVP_aes_256_gcm(), nullptr, bytes(m_key), bytes(iv)) != 1 ||
        EVP_EncryptUpdate(ctx.get(), bytes(out), &len, reinterpret_cast<const unsigned char*>(plain.data()),
                          static_cast<int>(plain.length())) != 1 ||
        EVP_EncryptFinal_ex(ctx.get(), bytes(out) + len, &fin) != 1 ||
        EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_GET_TAG, TAG_BYTES, bytes(tag)) != 1) {
        return wxString();
    }
    out.resize(static_cast<size_t>(len + fin));
    return toHexString(iv + tag + out);
}

wxString wxEmailMessageID::Decrypt(const wxString& hex) {
    std::string data;
    if (hex.empty() || !fromHexString(hex, &data) || data.size() < IV_BYTES + TAG_BYTES || !LoadKey(false)) {
        return wxString();
    }
    const std::string iv = data.substr(0, IV_BYTES);
    std::string tag = data.substr(IV_BYTES, TAG_BYTES);
    const std::string cipher = data.substr(IV_BYTES + TAG_BYTES);
    Ctx ctx(EVP_CIPHER_CTX_new());
    std::string out(cipher.size() + 16, '\0');
    int len = 0, fin = 0;
    if (!ctx || EVP_DecryptInit_ex(ctx.get(), EVP_aes_256_gcm(), nullptr, bytes(m_key), bytes(iv)) != 1 ||
        EVP_DecryptUpdate(ctx.get(), bytes(out), &len, bytes(cipher), static_cast<int>(cipher.size())) != 1 ||
        EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_SET_TAG, TAG_BYTES, bytes(tag)) != 1 ||
        // The tag check: a wrong key or a changed byte ends here.
        EVP_DecryptFinal_ex(ctx.get(), bytes(out) + len, &fin) != 1) {
        return wxString();
    }
    out.resize(static_cast<size_t>(len + fin));
    return wxString::FromUTF8(out.data(), out.size());
}

wxString wxEmailMessageID::toHexString(const std::string& data) {
    static const char digits[] = "0123456789abcdef";
    std::string hex;
    hex.reserve(data.size() * 2);
    for (unsigned char c : data) {
        hex += digits[c >> 4];
        hex += digits[c & 15];
    }
    return wxString::FromAscii(hex.c_str());
}

bool wxEmailMessageID::fromHexString(const wxString& hex, std::string* data) {
    if (hex.length() % 2 != 0) return false;
    auto value = [](wxUniChar c) -> int {
        if (c >= '0' && c <= '9') return static_cast<int>(c.GetValue() - '0');
        if (c >= 'a' && c <= 'f') return static_cast<int>(c.GetValue() - 'a' + 10);
        if (c >= 'A' && c <= 'F') return static_cast<int>(c.GetValue() - 'A' + 10);
        return -1;
    };
    std::string out;
    out.reserve(hex.length() / 2);
    for (size_t i = 0; i < hex.length(); i += 2) {
        const int hi = value(hex[i]), lo = value(hex[i + 1]);
        if (hi < 0 || lo < 0) return false;
        out += static_cast<char>(hi * 16 + lo);
    }
    *data = std::move(out);
    return true;
}
