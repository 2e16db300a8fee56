// Sending through libcurl to a real SMTP server on loopback: plain, with a login, with
// implicit TLS; the message as received read back by Python's parser and its attachment
// compared byte for byte with the file sent. And the failures libcurl reports.
#include <curl/curl.h>
#include <gmock/gmock.h>

#include "mailtest.h"
#include "wxemailmessage.h"
#include "wxmailer.h"

using ::testing::Contains;

TEST(SmtpUrl, SchemeFollowsSecureModeWhateverThePort) {
    struct Case {
        const char* server;
        int port;
        bool secure;
        const char* url;
    } cases[] = {
        {"smtp.firma.cz", 25, false, "smtp://smtp.firma.cz:25"},
        {"smtp.firma.cz", 465, false, "smtp://smtp.firma.cz:465"},
        {"smtp.firma.cz", 587, false, "smtp://smtp.firma.cz:587"},
        {"smtp.firma.cz", 465, true, "smtps://smtp.firma.cz:465"},
        {"127.0.0.1", 25, true, "smtps://127.0.0.1:25"},
    };
    for (const Case& c : cases) EXPECT_EQ(smtpUrl(c.server, c.port, c.secure), c.url);
}

class MailerTest : public MailTest {
 protected:
    // Sends a Czech message with an attachment of `size` bytes; the path of the file sent.
    wxString send(wxMailer& mailer, size_t size = 70000) {
        const wxString pdf = writeFile(u8("Faktura č. 2024015.pdf"), pdfBytes(size));
        wxEmailMessage m(u8("Účtárna <ucetni@firma.cz>"), "odberatel@example.cz", u8("Faktura č. 2024015"),
                         u8("Dobrý den,\nv příloze Vám zasíláme fakturu\n.\nS pozdravem"));
        m.AddAttachment(pdf);
        EXPECT_TRUE(m.Finalize());
        m_sent = mailer.Send(m);
        return pdf;
    }
    void expectReceived(const LoopbackSmtpServer& server, const wxString& pdf) {
        ASSERT_TRUE(m_sent) << mailer_error;
        ASSERT_TRUE(server.received(1));
        EXPECT_EQ(fileBytes(m_dir + "/1.env"), "ucetni@firma.cz\nodberatel@example.cz\n");
        const wxString out = freshDir("cteni");
        const wxArrayString seen = LoopbackSmtpServer::parsed(server.message(1), out);
        EXPECT_THAT(seen, Contains(u8("subject:Faktura č. 2024015")));
        EXPECT_THAT(seen, Contains(u8("from:Účtárna <ucetni@firma.cz>")));
        EXPECT_THAT(seen, Contains(u8("defects:0")));
        EXPECT_THAT(seen, Contains(u8("filename:Faktura č. 2024015.pdf")));
        EXPECT_TRUE(fileBytes(out + u8("/Faktura č. 2024015.pdf")) == fileBytes(pdf)) << "attachment differs";
        // A line of a single dot inside the text is not the end of the data.
        EXPECT_EQ(fileBytes(out + "/text.txt"),
                  std::string(u8("Dobrý den,\nv příloze Vám zasíláme fakturu\n.\nS pozdravem").utf8_str()));
    }
    bool m_sent = false;
    wxString mailer_error;
};

TEST_F(MailerTest, PlainServer) {
    LoopbackSmtpServer server(m_dir, {});
    ASSERT_TRUE(server.running());
    wxMailer mailer("", "", smtpUrl("127.0.0.1", server.port(), false), false, false);
    const wxString pdf = send(mailer);
    mailer_error = mailer.GetError();
    expectReceived(server, pdf);
}

TEST_F(MailerTest, LoginAccepted) {
    LoopbackSmtpServer server(m_dir, {false, "ucetni", u8("Heslo-ř").utf8_str()});
    ASSERT_TRUE(server.running());
    wxMailer mailer("ucetni", u8("Heslo-ř"), smtpUrl("127.0.0.1", server.port(), false), true, false);
    const wxString pdf = send(mailer);
    mailer_error = mailer.GetError();
    expectReceived(server, pdf);
}

TEST_F(MailerTest, ImplicitTlsWithLoginAndSelfSignedCertificate) {
    LoopbackSmtpServer server(m_dir, {true, "ucetni", "tajne"});
    ASSERT_TRUE(server.running());
    wxMailer mailer("ucetni", "tajne", smtpUrl("127.0.0.1", server.port(), true), true, true);
    const wxString pdf = send(mailer);
    mailer_error = mailer.GetError();
    expectReceived(server, pdf);
}

// Failures come back as false with libcurl's own text, and nothing is received.
TEST_F(MailerTest, FailuresReportLibcurlText) {
    LoopbackSmtpServer plain(m_dir, {});
    ASSERT_TRUE(plain.running());
    const wxString tlsDir = freshDir("tls");
    LoopbackSmtpServer login(tlsDir, {false, "ucetni", "tajne"});
    ASSERT_TRUE(login.running());
    ClosedPort closed;
    ASSERT_GT(closed.port, 0);
    struct Case {
        const char* why;
        wxString url;
        bool auth, ssl;
        const char* password;
        CURLcode code;
    } cases[] = {
        {"connection refused", smtpUrl("127.0.0.1", closed.port, false), false, false, "", CURLE_COULDNT_CONNECT},
        // TLS demanded of a server that offers none: the switch really asks for it.
        {"no TLS offered", smtpUrl("127.0.0.1", plain.port(), false), false, true, "", CURLE_USE_SSL_FAILED},
        {"wrong password", smtpUrl("127.0.0.1", login.port(), false), true, false, "spatne", CURLE_LOGIN_DENIED},
    };
    for (const Case& c : cases) {
        wxMailer mailer("ucetni", c.password, c.url, c.auth, c.ssl);
        send(mailer, 10);
        EXPECT_FALSE(m_sent) << c.why;
        EXPECT_EQ(mailer.GetError(), wxString::FromUTF8(curl_easy_strerror(c.code))) << c.why;
    }
    EXPECT_FALSE(plain.received(1));
    EXPECT_FALSE(login.received(1));
}
