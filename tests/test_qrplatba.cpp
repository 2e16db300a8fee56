// The QR payment code: the payment string field by field, which invoices get a code, and the
// symbol decoded by a real reader (zbarimg) back into the same string.
#include <gtest/gtest.h>
#include <wx/ffile.h>

#include "fakturace/qrplatba.h"
#include "testcompany.h"

namespace {

TEST(QrPlatba, PaymentStringFieldByField) {
    const wxDateTime splatnost(14, wxDateTime::Oct, 2026);
    struct {
        const char* nazev;
        qrplatba::Platba platba;
        const char* text;
    } cases[] = {
        {"whole crowns lose their decimals", {"CZ6508000000192000145399", "", 336.00, "CZK", splatnost, "2026001", "", ""},
         "SPD*1.0*ACC:CZ6508000000192000145399*AM:336*CC:CZK*DT:20261014*X-VS:2026001"},
        {"IBAN with BIC, all symbols", {"CZ6508000000192000145399", "GIBACZPX", 1250.5, "EUR", splatnost, "1", "22", "0308"},
         "SPD*1.0*ACC:CZ6508000000192000145399+GIBACZPX*AM:1250.5*CC:EUR*DT:20261014*X-VS:1*X-SS:22*X-KS:0308"},
        {"six significant digits", {"CZ65", "", 1234567.89, "CZK", splatnost, "", "", ""},
         "SPD*1.0*ACC:CZ65*AM:1.23457e+06*CC:CZK*DT:20261014*X-VS:"},
    };
    for (const auto& c : cases) EXPECT_EQ(qrplatba::qrtext(c.platba), c.text) << c.nazev;
}

class QrPlatbaFaktura : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        ASSERT_TRUE(m_model->addBanka(Banka(901, "KB", "", "19-2000145399", "0800", "CZ6508000000192000145399", "", 1)));
        ASSERT_TRUE(m_model->addBanka(Banka(902, "BEZ", "", "123", "0100", " ", "", 1)));
        ASSERT_TRUE(m_model->addFaUhrada(FaUhrada(901, u8("Převodem"), false)));
        ASSERT_TRUE(m_model->addFaUhrada(FaUhrada(902, u8("Hotově"), true)));
    }
    static Faktura faktura(bool vydana, int uhradaid, int bankaid) {
        Faktura f;
        f.setValid(true);
        f.setVydana(vydana);
        f.setUhradaid(uhradaid);
        f.setBankaid(bankaid);
        f.setCelkem(1210);
        f.setMenaid(1);
        f.setSplatnost(wxDateTime(14, wxDateTime::Oct, 2026));
        f.setVs("2026001");
        return f;
    }
};

TEST_F(QrPlatbaFaktura, OnlyAnIssuedInvoicePaidIntoAnAccountWithIbanGetsACode) {
    struct {
        const char* nazev;
        bool vydana;
        int uhrada;
        int banka;
        bool kod;
    } cases[] = {
        {"issued, transfer, IBAN", true, 901, 901, true},
        {"paid in cash", true, 902, 901, false},
        {"received", false, 901, 901, false},
        {"account without IBAN", true, 901, 902, false},
        {"no payment form", true, -1, 901, false},
    };
    for (const auto& c : cases) {
        const Faktura f = faktura(c.vydana, c.uhrada, c.banka);
        EXPECT_EQ(qrplatba::isFakturaForQrPlatba(*m_model, f), c.kod) << c.nazev;
        EXPECT_EQ(qrplatba::qrtext(*m_model, f).empty(), !c.kod) << c.nazev;
    }
    EXPECT_EQ(qrplatba::qrtext(*m_model, faktura(true, 901, 901)),
              "SPD*1.0*ACC:CZ6508000000192000145399*AM:1210*CC:CZK*DT:20261014*X-VS:2026001");
}

TEST_F(QrPlatbaFaktura, SymbolDecodesToTheSameString) {
    const wxString text = qrplatba::qrtext(*m_model, faktura(true, 901, 901));
    const qrplatba::Symbol s = qrplatba::symbol(text);
    ASSERT_GT(s.size, 20);
    // A grey-map picture: 4 pixels a module and the quiet zone of 4 modules around.
    const int scale = 4, side = (s.size + 8) * scale;
    std::string pgm = "P5\n" + std::to_string(side) + " " + std::to_string(side) + "\n255\n";
    for (int py = 0; py < side; ++py)
        for (int px = 0; px < side; ++px) {
            const int x = px / scale - 4, y = py / scale - 4;
            const bool dark = x >= 0 && y >= 0 && x < s.size && y < s.size && s.tmavy(x, y);
            pgm += static_cast<char>(dark ? 0 : 255);
        }
    const wxString path = m_home + "/qr.pgm";
    wxFFile file(path, "wb");
    ASSERT_TRUE(file.Write(pgm.data(), pgm.size()) == pgm.size());
    file.Close();
    const CliResult decoded = runShell("zbarimg --raw -q " + path + " 2>/dev/null");
    EXPECT_EQ(decoded.status, 0) << decoded.output;
    EXPECT_EQ(wxString::FromUTF8(decoded.output).Strip(wxString::both), text);
}

}  // namespace
