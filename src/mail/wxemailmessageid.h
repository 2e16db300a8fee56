// The cipher of the stored SMTP password. The password is enciphered with AES-256-GCM under
// a key of 32 random bytes kept in a file of its own (mode 0600) in the user's data folder,
// outside the company database: a copied company file does not carry a readable password.
// The enciphered form is the text "IV | tag | ciphertext" in hexadecimal.
#pragma once

#include <wx/string.h>

#include <string>

class wxEmailMessageID {
 public:
    // The cipher with the key kept in `keyPath` (made on first use); by default the file
    // "smtp.klic" in the user's data folder.
    explicit wxEmailMessageID(const wxString& keyPath = DefaultKeyPath());

    // The hexadecimal enciphered text of a password; an empty password stays empty. Empty too
    // when no key can be had (the folder is not writable).
    wxString Encrypt(const wxString& password);
    // The password of an enciphered text; empty for an empty, damaged or foreign text, or
    // when the key is not the one it was enciphered with.
    wxString Decrypt(const wxString& hex);

    static wxString toHexString(const std::string& bytes);
    // The bytes of a hexadecimal text; false for an odd length or a character not hexadecimal.
    static bool fromHexString(const wxString& hex, std::string* bytes);

    static wxString DefaultKeyPath();

 private:
    // The key read from its file, made when the file is missing or damaged (`create`).
    bool LoadKey(bool create);

    wxString m_keyPath;
    std::string m_key;
};
