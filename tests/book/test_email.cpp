// Sending an invoice by e-mail as a person does it: the preferences page "E-mail" typed and
// saved (the password stored enciphered), "Odeslat fakturu" refusing empty fields, sending to
// a real SMTP server on loopback with the PDF of the layout chosen, a transfer error, and the
// list of sent invoices with its CSV export.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/bookctrl.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/ffile.h>
#include <wx/listctrl.h>
#include <wx/prntbase.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include "EmailPanel.h"
#include "OdeslaneDialog.h"
#include "PreferencesDialog.h"
#include "SendEmailDialog.h"
#include "booktest.h"
#include "documentprint.h"
#include "printtest.h"
#include "smtpserver.h"
#include "wxemailmessageid.h"

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

void tick(wxWindow* parent, const char* name, bool value) {
    auto* box = field<wxCheckBox>(parent, name);
    if (!box) return;
    box->SetValue(value);
    wxCommandEvent event(wxEVT_CHECKBOX, box->GetId());
    event.SetEventObject(box);
    event.SetInt(value ? 1 : 0);
    box->ProcessWindowEvent(event);
}

wxString value(wxWindow* parent, const char* name) {
    auto* text = field<wxTextCtrl>(parent, name);
    return text ? text->GetValue() : wxString("<none>");
}

}  // namespace

class EmailTest : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        const int k = kontakt("Odběratel s.r.o.");
        Kontakt c = m_model->getKontakt(k);
        c.setEmail("nakup@odberatel.cz");
        ASSERT_TRUE(m_model->editKontakt(c));
        m_faktura = faktura(true, 1250.5, "2024-02-10", k);
        m_cislo = m_model->getFaktura(m_faktura).cislo();
    }
    // Stores SMTP settings as the preferences page would.
    void smtp(const wxString& server, int port, bool ssl, bool auth, const wxString& user, const wxString& password) {
        ASSERT_TRUE(
            m_model->setSmtp(Smtp(server, port, ssl, auth, user, wxEmailMessageID().Encrypt(password),
                                  "ucetni@firma.cz", "Faktura", u8("Dobrý den,\nv příloze Vám zasíláme fakturu"))));
    }
    wxString folder(const char* name) {
        const wxString dir = m_home + "/" + name;
        wxFileName::Mkdir(dir, 0700, wxPATH_MKDIR_FULL);
        return dir;
    }
    // The prompts shown under `caption`, each as kind + ": " + text.
    wxArrayString shown(const char* caption) {
        wxArrayString all;
        for (const auto& s : m_prompts.shown())
            if (s.caption == u8(caption)) all.Add(s.kind + ": " + s.text);
        return all;
    }

    int m_faktura = 0;
    wxString m_cislo;
};

TEST_F(EmailTest, DialogStartsFromSettingsAndCustomer) {
    smtp("smtp.firma.cz", 465, true, true, "ucetni", u8("Heslo-ř"));
    SendEmailDialog dialog(m_frame, m_model->getFaktura(m_faktura));
    EXPECT_EQ(dialog.GetTitle(), "Odeslat fakturu");
    EXPECT_EQ(value(&dialog, "server"), "smtp.firma.cz");
    EXPECT_EQ(field<wxSpinCtrl>(&dialog, "port")->GetValue(), 465);
    EXPECT_TRUE(field<wxCheckBox>(&dialog, "ssl")->GetValue());
    EXPECT_EQ(field<wxChoice>(&dialog, "zabezpeceni")->GetStringSelection(), "SSL/TLS");
    EXPECT_TRUE(field<wxCheckBox>(&dialog, "autentifikace")->GetValue());
    EXPECT_EQ(value(&dialog, "uzivatel"), "ucetni");
    EXPECT_EQ(value(&dialog, "heslo"), u8("Heslo-ř"));
    EXPECT_TRUE(field<wxTextCtrl>(&dialog, "heslo")->HasFlag(wxTE_PASSWORD));
    EXPECT_EQ(value(&dialog, "odesilatel"), "ucetni@firma.cz");
    EXPECT_EQ(value(&dialog, "prijemce"), "nakup@odberatel.cz");
    EXPECT_EQ(value(&dialog, "predmet"), "Faktura");
    EXPECT_EQ(value(&dialog, "text"), u8("Dobrý den,\nv příloze Vám zasíláme fakturu"));
    // Without SSL the security type cannot be chosen, without a login the login fields are off.
    tick(&dialog, "ssl", false);
    tick(&dialog, "autentifikace", false);
    EXPECT_FALSE(field<wxChoice>(&dialog, "zabezpeceni")->IsEnabled());
    EXPECT_FALSE(field<wxTextCtrl>(&dialog, "heslo")->IsEnabled());
    screenshot(dialog, "send-email-dialog");
}

TEST_F(EmailTest, EmptyServerSenderOrRecipientIsRefused) {
    smtp("127.0.0.1", 25, false, false, "", "");
    struct Case {
        const char* field;
        const char* message;
    } cases[] = {
        {"server", "Adresa serveru nemůže být prázdná"},
        {"odesilatel", "Odesílatel nemůže být prázdný"},
        {"prijemce", "Příjemce nemůže být prázdný"},
    };
    for (const Case& c : cases) {
        m_prompts.clear();
        SendEmailDialog dialog(m_frame, m_model->getFaktura(m_faktura));
        const Outcome outcome = fillAndOk(dialog, [&](wxDialog* d) { typeText(d, c.field, "   "); });
        EXPECT_FALSE(outcome.closed) << c.field;
        EXPECT_EQ(outcome.focus, wxWindow::FindWindowByName(c.field, &dialog)) << c.field;
        // Refused before the layout is asked for: nothing else was shown.
        ASSERT_EQ(m_prompts.shown().size(), 1u) << c.field;
        EXPECT_EQ(m_prompts.shown()[0].text, u8(c.message));
        EXPECT_EQ(m_prompts.shown()[0].caption, u8("Varování"));
    }
    EXPECT_EQ(m_model->tableRows("odeslany"), 0);
}

// The whole way: fields typed, the layout chosen, the PDF sent over a login to a real server,
// the sending logged, listed and exported.
TEST_F(EmailTest, SendsInvoicePdfAndLogsIt) {
    LoopbackSmtpServer server(folder("smtp"), {false, "ucetni", u8("Heslo-ř").utf8_str()});
    ASSERT_TRUE(server.running());
    SendEmailDialog dialog(m_frame, m_model->getFaktura(m_faktura));
    m_prompts.answerChoice(0);  // "Výchozí šablona programu"
    const Outcome outcome = fillAndOk(dialog, [&](wxDialog* d) {
        typeText(d, "server", "127.0.0.1");
        field<wxSpinCtrl>(d, "port")->SetValue(server.port());
        tick(d, "autentifikace", true);
        typeText(d, "uzivatel", "ucetni");
        typeText(d, "heslo", u8("Heslo-ř"));
        typeText(d, "odesilatel", u8("Účtárna <ucetni@firma.cz>"));
        typeText(d, "prijemce", "nakup@odberatel.cz");
        typeText(d, "predmet", u8("Faktura č. ") + m_cislo);
    });
    EXPECT_TRUE(outcome.closed) << m_prompts.transcript();
    EXPECT_THAT(shown("Informace"), ElementsAre(u8("info: Email úspěšně odeslán")));
    ASSERT_TRUE(server.received(1));

    const wxString out = folder("cteni");
    const wxArrayString seen = LoopbackSmtpServer::parsed(server.message(1), out);
    EXPECT_THAT(seen, Contains(u8("subject:Faktura č. ") + m_cislo));
    EXPECT_THAT(seen, Contains(u8("filename:") + m_cislo + ".pdf"));
    const wxString pdf = out + "/" + m_cislo + ".pdf";
    EXPECT_EQ(PrintTest::pdfInfo(pdf)["Title"], u8("Faktura č. ") + m_cislo);
    EXPECT_THAT(std::string(PrintTest::pdfText(pdf).utf8_str()), HasSubstr(std::string(m_cislo.utf8_str())));
    // The PDF was made for the message only and is gone.
    EXPECT_FALSE(wxFileName::FileExists(DocumentPrint::pdfFolder() + "/" + m_cislo + ".pdf"));

    // The connection that worked is remembered, the default subject is not replaced.
    const Smtp stored = m_model->smtp();
    EXPECT_EQ(stored.server(), "127.0.0.1");
    EXPECT_EQ(stored.port(), server.port());
    EXPECT_NE(stored.password(), u8("Heslo-ř"));
    EXPECT_NE(stored.subject(), u8("Faktura č. ") + m_cislo);

    const lxOdeslanyArray log = m_model->odeslane();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0]->faktura(), m_cislo);
    EXPECT_EQ(log[0]->prijemce(), "nakup@odberatel.cz");
    EXPECT_LT(std::abs((wxDateTime::Now() - log[0]->cas()).GetSeconds().ToLong()), 60);

    OdeslaneDialog list(m_frame);
    EXPECT_EQ(list.GetTitle(), u8("Seznam odeslaných faktur"));
    EXPECT_THAT(listTexts(list.list(), 1), ElementsAre(m_cislo));
    EXPECT_THAT(listTexts(list.list(), 2), ElementsAre("nakup@odberatel.cz"));
    EXPECT_EQ(list.list()->GetItemText(0, 0), log[0]->cas().Format("%x %X"));
    screenshot(list, "odeslane-dialog");
    m_prompts.answerPath(m_home + "/odeslane");
    const wxString csv = list.exportovat();
    EXPECT_EQ(csv, m_home + "/odeslane.csv");
    EXPECT_EQ(m_prompts.shown().back().text, u8("Exportovat seznam do"));
    const std::string expected =
        "\xEF\xBB\xBF\"Datum a \xC4\x8D"
        "as\";\"Faktura\";\"P\xC5\x99\xC3\xAD"
        "jemce\"\r\n\"" +
        std::string(log[0]->cas().Format("%x %X").utf8_str()) + "\";\"" + std::string(m_cislo.utf8_str()) +
        "\";\"nakup@odberatel.cz\"\r\n";
    EXPECT_EQ(fileBytes(csv), expected);
}

// A transfer that fails shows libcurl's text under "Email Error!", logs nothing and leaves the
// dialog open; a cancelled layout choice sends nothing at all.
TEST_F(EmailTest, FailedOrCancelledSendingLogsNothing) {
    const ClosedPort closed;
    ASSERT_GT(closed.port, 0);
    smtp("127.0.0.1", closed.port, false, false, "", "");
    {
        SendEmailDialog dialog(m_frame, m_model->getFaktura(m_faktura));
        m_prompts.answerChoice(0);
        EXPECT_FALSE(fillAndOk(dialog, [](wxDialog*) {}).closed);
        EXPECT_THAT(shown("Email Error!"), ElementsAre("error: Couldn't connect to server"));
    }
    m_prompts.clear();
    {
        SendEmailDialog dialog(m_frame, m_model->getFaktura(m_faktura));
        m_prompts.answerChoice(-1);  // the layout choice cancelled
        EXPECT_FALSE(fillAndOk(dialog, [](wxDialog*) {}).closed);
        ASSERT_EQ(m_prompts.shown().size(), 1u);
        EXPECT_EQ(m_prompts.shown()[0].caption, u8("Typ šablony"));
    }
    EXPECT_EQ(m_model->tableRows("odeslany"), 0);
}

// The preferences page: typed, saved, the password stored enciphered and shown again.
TEST_F(EmailTest, PreferencesPageStoresSettingsWithEncipheredPassword) {
    {
        PreferencesDialog preferences(m_frame);
        EmailPanel* page = preferences.emailPanel();
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(field<wxSpinCtrl>(page, "port")->GetValue(), 25);
        EXPECT_EQ(value(page, "predmet"), "Faktura");
        typeText(page, "server", " smtp.firma.cz ");
        field<wxSpinCtrl>(page, "port")->SetValue(465);
        tick(page, "ssl", true);
        choose(field<wxChoice>(page, "zabezpeceni"), 1);
        tick(page, "autentifikace", true);
        typeText(page, "uzivatel", "ucetni@firma.cz");
        typeText(page, "heslo", u8("Tajné heslo 1"));
        typeText(page, "odesilatel", u8("Účtárna <ucetni@firma.cz>"));
        typeText(page, "predmet", u8("Faktura od Účtárny"));
        typeText(page, "text", u8("Dobrý den,\nfaktura je v příloze."));
        preferences.GetBookCtrl()->SetSelection(2);
        screenshot(preferences, "email-panel");
        ASSERT_TRUE(preferences.save());
    }
    const Smtp s = m_model->smtp();
    EXPECT_EQ(s.server(), "smtp.firma.cz");
    EXPECT_EQ(s.port(), 465);
    EXPECT_TRUE(s.ssl());
    EXPECT_TRUE(s.autentifikace());
    EXPECT_EQ(s.username(), "ucetni@firma.cz");
    EXPECT_EQ(s.sender(), u8("Účtárna <ucetni@firma.cz>"));
    EXPECT_EQ(s.subject(), u8("Faktura od Účtárny"));
    EXPECT_EQ(s.text(), u8("Dobrý den,\nfaktura je v příloze."));
    EXPECT_EQ(s.password().find(u8("Tajné")), wxString::npos);
    EXPECT_FALSE(s.password().empty());
    EXPECT_EQ(wxEmailMessageID().Decrypt(s.password()), u8("Tajné heslo 1"));
    EXPECT_EQ(m_model->tableRows("smtp"), 1);

    // SSL ticked with the type "Žádné" is no TLS; the page shows what was stored.
    PreferencesDialog again(m_frame);
    EXPECT_EQ(value(again.emailPanel(), "heslo"), u8("Tajné heslo 1"));
    EXPECT_EQ(field<wxChoice>(again.emailPanel(), "zabezpeceni")->GetSelection(), 1);
    choose(field<wxChoice>(again.emailPanel(), "zabezpeceni"), 0);
    ASSERT_TRUE(again.save());
    EXPECT_FALSE(m_model->smtp().ssl());
}

// "Náhled" asks for the layout and opens the invoice's preview; cancelling the choice opens none.
TEST_F(EmailTest, PreviewAsksForLayout) {
    const auto previews = [] {
        std::vector<wxPreviewFrame*> all;
        for (wxWindow* t : wxTopLevelWindows)
            if (auto* f = dynamic_cast<wxPreviewFrame*>(t); f && !f->IsBeingDeleted()) all.push_back(f);
        return all;
    };
    SendEmailDialog dialog(m_frame, m_model->getFaktura(m_faktura));
    m_prompts.answerChoice(-1);
    pressButton(&dialog, "nahled");
    EXPECT_TRUE(previews().empty());
    m_prompts.answerChoice(0);
    pressButton(&dialog, "nahled");
    ASSERT_EQ(m_prompts.shown().size(), 2u);
    for (const auto& s : m_prompts.shown()) EXPECT_EQ(s.caption, u8("Typ šablony"));
    const std::vector<wxPreviewFrame*> opened = previews();
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0]->GetTitle(), "Faktura");
    opened[0]->Destroy();
    wxTheApp->ProcessIdle();
}
