// Printing an issued invoice from its page: the layout choice, the built-in layout and a
// template file to PDF, the last template offered again, and the QR code in the file read
// back by a real reader.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filefn.h>

#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "fakturace/castky.h"
#include "fakturace/dokladform.h"
#include "fakturace/qrplatba.h"
#include "fakturaprint.h"
#include "lxsettings.h"
#include "printtest.h"

using ::testing::ElementsAre;

class InvoicePrint : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        nastavPlatceDph();
        lxSettings::instance()->setDatum(iso("2024-06-10"));
        lxSettings::instance()->setFakturaSablona(wxString());
        Banka banka = m_model->getBanka(1);
        banka.setIban("CZ6508000000192000145399");
        banka.setBic("GIBACZPX");
        ASSERT_TRUE(m_model->editBanka(banka));
    }

    // A payer's invoice of two items paid by transfer (`uhrada` 2) or in cash (1).
    int invoice(int uhrada) {
        DokladForm form = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
        for (const auto& [popis, cena] : {std::pair<const char*, double>{"Práce", 1250.5}, {"Materiál", 336}}) {
            const castky::Polozka c = castky::polozka(true, false, 1, cena, 21, form.duzp);
            EXPECT_TRUE(m_model->addFaPolozka(FaPolozka(m_model->getLastId("fapolozka"), u8(popis), "h", 1, cena,
                                                        m_model->getDphSazbaId(21, 2024), c.dph, c.celkem, false,
                                                        form.id, -1, -1, false)));
        }
        form.uhradaid = uhrada;
        form.registr = uhrada == 1 ? m_model->getPokladna(1).zkratka() : m_model->getBanka(1).zkratka();
        form.protistrana = u8("Odběratel s.r.o.");
        form.vs = "2024077";
        EXPECT_EQ(ulozitDoklad(*m_model, form), wxString());
        return form.id;
    }

    lxBookPage* page(int id) {
        m_book->createPages();
        m_book->selectPage(NAV_FAKTURY_VYDANE);
        lxBookPage* p = m_book->page(NAV_FAKTURY_VYDANE);
        p->refresh();
        p->list()->selectId(id);
        return p;
    }

    // Runs the page's "Tisk" on the selected invoice, answering "Vybranou fakturu", the layout
    // `sablona` (and its file) and "Uložit do PDF".
    wxString print(lxBookPage* p, int sablona, const wxString& soubor, const char* pdfName) {
        m_prompts.answerChoice(0);
        m_prompts.answerChoice(sablona);
        if (!soubor.empty()) m_prompts.answerPath(soubor);
        m_prompts.answerChoice(1);
        const wxString pdf = m_home + "/" + pdfName;
        m_prompts.answerPath(pdf);
        p->print();
        return pdf;
    }

    wxString decode(const wxString& pdf) {
        const std::string png = std::string(m_home.utf8_str()) + "/strana";
        runCommand("pdftoppm -r 300 -f 1 -l 1 -singlefile -png '" + std::string(pdf.utf8_str()) + "' '" + png + "'");
        return wxString::FromUTF8(runCommand("zbarimg --raw -q '" + png + ".png' 2>/dev/null")).Strip(wxString::both);
    }
};

TEST_F(InvoicePrint, BuiltInLayoutThenATemplateWhichIsOfferedAgainNextTime) {
    const int id = invoice(2);
    lxBookPage* p = page(id);
    const wxString qr = qrplatba::qrtext(*m_model, m_model->getFaktura(id));
    ASSERT_FALSE(qr.empty());

    const wxString vychozi = print(p, 0, wxString(), "vychozi.pdf");
    EXPECT_THAT(std::vector<wxString>(m_prompts.lastChoices.begin(), m_prompts.lastChoices.end()),
                ElementsAre(u8("Náhled"), u8("Uložit do PDF")));
    ASSERT_TRUE(wxFileExists(vychozi));
    const wxString text = PrintTest::pdfText(vychozi);
    for (const char* expected : {"Faktura - daňový doklad č.", "Práce", "Materiál", "2024077", "GIBACZPX"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    EXPECT_EQ(decode(vychozi), qr);

    // Without a last template the choice has two entries; "Ze souboru" is the second.
    Document sablona;
    TextElement nadpis(u8("Faktura {faktura-cislo} pro {kontakt-nazev}"), wxPoint(0, 0), 150);
    sablona.addElement(nadpis);
    ImageElement kod;
    kod.path = ImageElement::PATH_QR;
    kod.pos = wxPoint(0, 20);
    sablona.addElement(kod);
    const wxString soubor = m_home + "/moje sablona.xml";
    ASSERT_TRUE(sablona.saveToXml(soubor));
    const wxString zeSouboru = print(p, 1, soubor, "sablona.pdf");
    EXPECT_EQ(decode(zeSouboru), qr);
    EXPECT_NE(PrintTest::pdfText(zeSouboru).Find("Faktura " + m_model->getFakturaCisloById(id)), wxNOT_FOUND);
    EXPECT_EQ(lxSettings::instance()->fakturaSablona(), soubor);

    // Now the last template is the second entry, used without asking for a file (no path is
    // queued, so a file dialog would cancel the print).
    const wxString znovu = print(p, 1, wxString(), "znovu.pdf");
    ASSERT_TRUE(wxFileExists(znovu));
    EXPECT_EQ(decode(znovu), qr);
}

TEST_F(InvoicePrint, CashInvoiceHasNoCodeAndABrokenTemplateIsToldNotPrinted) {
    const int id = invoice(1);
    lxBookPage* p = page(id);
    const wxString pdf = print(p, 0, wxString(), "hotove.pdf");
    ASSERT_TRUE(wxFileExists(pdf));
    EXPECT_EQ(PrintTest::pdfText(pdf).Find("QR Platba"), wxNOT_FOUND);
    EXPECT_EQ(decode(pdf), "");

    const wxString rozbita = m_home + "/rozbita.xml";
    wxFFile(rozbita, "w").Write("<evidaDocument><Margins");
    m_prompts.answerChoice(1);
    m_prompts.answerPath(rozbita);
    EXPECT_TRUE(p->runRowCommand(u8("Tisk faktury")));
    EXPECT_EQ(m_prompts.shown().back().kind, "error");
    EXPECT_TRUE(lxSettings::instance()->fakturaSablona().empty());
}
