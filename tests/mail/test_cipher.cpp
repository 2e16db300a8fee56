// The cipher of the stored SMTP password: round trip, a fresh ciphertext each time, and a
// damaged text, a foreign key or a lost key giving an empty password instead of garbage.
#include <sys/stat.h>

#include "mailtest.h"
#include "wxemailmessageid.h"

TEST_F(MailTest, PasswordRoundTrip) {
    wxEmailMessageID cipher(m_dir + "/klic/smtp.klic");
    for (const char* password : {"x", "heslo", "Příliš žluťoučký kůň úpěl ďábelské ódy", "a b\tc\"'\\;--",
                                 "0123456789012345678901234567890123456789"}) {
        const wxString hex = cipher.Encrypt(u8(password));
        ASSERT_FALSE(hex.empty()) << password;
        EXPECT_EQ(hex.find(u8(password)), wxString::npos);
        EXPECT_TRUE(hex.IsAscii());
        // A new object reads the key from its file again.
        EXPECT_EQ(wxEmailMessageID(m_dir + "/klic/smtp.klic").Decrypt(hex), u8(password)) << password;
    }
    EXPECT_EQ(cipher.Encrypt(wxString()), wxString());
    EXPECT_EQ(cipher.Decrypt(wxString()), wxString());
}

TEST_F(MailTest, KeyFileIsPrivate) {
    const wxString key = m_dir + "/klic/smtp.klic";
    wxEmailMessageID(key).Encrypt("heslo");
    struct stat st {};
    ASSERT_EQ(stat(key.utf8_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);
    EXPECT_EQ(st.st_size, 32);
}

TEST_F(MailTest, EqualPasswordsGiveDifferentTexts) {
    wxEmailMessageID cipher(m_dir + "/smtp.klic");
    const wxString a = cipher.Encrypt("heslo"), b = cipher.Encrypt("heslo");
    EXPECT_NE(a, b);
    EXPECT_EQ(cipher.Decrypt(a), "heslo");
    EXPECT_EQ(cipher.Decrypt(b), "heslo");
}

TEST_F(MailTest, DamagedTextOrOtherKeyDecryptsToEmpty) {
    wxEmailMessageID cipher(m_dir + "/smtp.klic");
    const wxString hex = cipher.Encrypt("tajne-heslo");
    ASSERT_EQ(cipher.Decrypt(hex), "tajne-heslo");
    std::string raw;
    ASSERT_TRUE(wxEmailMessageID::fromHexString(hex, &raw));
    // Every byte flipped in turn (IV, tag and ciphertext alike) is noticed.
    for (size_t i = 0; i < raw.size(); ++i) {
        std::string bad = raw;
        bad[i] = static_cast<char>(bad[i] ^ 0x01);
        EXPECT_EQ(cipher.Decrypt(wxEmailMessageID::toHexString(bad)), wxString()) << i;
    }
    struct Case {
        const char* why;
        wxString text;
    } cases[] = {
        {"shortened", hex.Left(hex.length() - 2)},
        {"odd length", hex.Left(hex.length() - 1)},
        {"not hexadecimal", hex.Left(hex.length() - 2) + "zz"},
        {"only an IV", hex.Left(24)},
        {"plain password", "tajne-heslo"},
    };
    for (const Case& c : cases) EXPECT_EQ(cipher.Decrypt(c.text), wxString()) << c.why;
    EXPECT_EQ(wxEmailMessageID(m_dir + "/jiny.klic").Decrypt(hex), wxString());
    // A lost key file is not made up when reading: nothing comes out, and no key file appears.
    EXPECT_EQ(wxEmailMessageID(m_dir + "/chybi.klic").Decrypt(hex), wxString());
    EXPECT_FALSE(wxFileName::FileExists(m_dir + "/chybi.klic"));
}

TEST_F(MailTest, DamagedKeyFileIsReplaced) {
    const wxString key = writeFile("smtp.klic", "kratky");
    wxEmailMessageID cipher(key);
    const wxString hex = cipher.Encrypt("heslo");
    ASSERT_FALSE(hex.empty());
    EXPECT_EQ(wxEmailMessageID(key).Decrypt(hex), "heslo");
    EXPECT_EQ(fileBytes(key).size(), 32u);
}
