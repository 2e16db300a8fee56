// A contact and its address are written together: both rows or neither. Names sort in Czech
// order and are found regardless of case and accents; IČ, DIČ and e-mail have their checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "collation.h"
#include "kontaktcheck.h"
#include "testcompany.h"

class KontaktSAdresou : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
    }
    int add(const char* nazev, const char* misto) {
        return m_model->addKontaktSAdresou(Kontakt(-1, u8(nazev), "", "", "", "", true, -1),
                                           Adresa(-1, "", "", u8(misto), "", ""));
    }
};

TEST_F(KontaktSAdresou, AddGivesBothRowsNewIdsAndNotifiesOnce) {
    const int before = scalar("SELECT count(*) FROM adresa");
    m_events.updates.clear();
    const int id = add("Alfa", "Brno");
    ASSERT_EQ(id, scalar("SELECT max(id) FROM kontakt"));
    const Kontakt k = m_model->getKontakt(id);
    EXPECT_EQ(k.adresaid(), scalar("SELECT max(id) FROM adresa"));
    EXPECT_EQ(m_model->getAdresa(k.adresaid()).misto(), "Brno");
    EXPECT_EQ(scalar("SELECT count(*) FROM adresa"), before + 1);
    EXPECT_EQ(m_events.updates, std::vector<int>{NAV_ALL});
}

TEST_F(KontaktSAdresou, FailedContactInsertLeavesNoAddress) {
    const int before = scalar("SELECT count(*) FROM adresa");
    m_model->db().ExecuteUpdate("CREATE TRIGGER refuse BEFORE INSERT ON kontakt BEGIN SELECT RAISE(ABORT,'no'); END");
    EXPECT_EQ(add("Alfa", "Brno"), -1);
    EXPECT_EQ(scalar("SELECT count(*) FROM adresa"), before);
}

TEST_F(KontaktSAdresou, EditNeverChangesAnAddressSharedWithTheCompany) {
    const int id = add("Alfa", "Brno");
    Kontakt k = m_model->getKontakt(id);
    const int own = k.adresaid();
    ASSERT_TRUE(m_model->editKontaktSAdresou(k, Adresa(-1, "", "", "Praha", "", "")));
    EXPECT_EQ(m_model->getKontakt(id).adresaid(), own);
    EXPECT_EQ(m_model->getAdresa(own).misto(), "Praha");

    // A contact of an older file pointing at the company's address gets an address of its own.
    m_model->db().ExecuteUpdate(wxString::Format("UPDATE kontakt SET adresaid=1 WHERE id=%d", id));
    k.setAdresaid(1);
    ASSERT_TRUE(m_model->editKontaktSAdresou(k, Adresa(-1, "", "", u8("Plzeň"), "", "")));
    EXPECT_NE(m_model->getKontakt(id).adresaid(), 1);
    EXPECT_EQ(m_model->getAdresa(1).misto(), "");
    EXPECT_EQ(m_model->getAdresa(m_model->getKontakt(id).adresaid()).misto(), u8("Plzeň"));
    EXPECT_FALSE(m_model->editKontaktSAdresou(Kontakt(999, "X", "", "", "", "", true, -1), Adresa()));
}

TEST_F(KontaktSAdresou, DeleteTakesTheOwnAddressAndRefusesContactZero) {
    const int id = add("Alfa", "Brno");
    const int adresa = m_model->getKontakt(id).adresaid();
    m_model->db().ExecuteUpdate(
        wxString::Format("INSERT INTO zavpoh(id,protistranaid,uhradaid,menaid,predkontaceid,obdobirok) "
                         "VALUES(1,%d,1,1,1,%d)",
                         id, m_model->currentRok()));
    ASSERT_TRUE(m_model->deleteKontaktSAdresou(id));
    EXPECT_FALSE(m_model->hasKontakt(id));
    EXPECT_FALSE(m_model->hasAdresa(adresa));
    EXPECT_EQ(scalar("SELECT protistranaid FROM zavpoh WHERE id=1"), 0);
    EXPECT_FALSE(m_model->deleteKontaktSAdresou(0));
    EXPECT_TRUE(m_model->hasKontakt(0));
    EXPECT_FALSE(m_model->deleteKontaktSAdresou(id));
}

// --- Czech order and search of names ---------------------------------------------------------

struct OrderCase {
    const char* before;
    const char* after;
};

TEST(CzechOrder, LettersWithHacekAndChFollowTheirBaseLetters) {
    const OrderCase cases[] = {
        {"Cyril", "Čapek"},     // Č is a letter of its own after C
        {"Cvrček", "Čáp"},      // ... whatever follows
        {"Hradec", "Chrudim"},  // Ch comes after H
        {"Hýbl", "Chalupa"},    // ... after every H
        {"Chrudim", "Ivan"},    // ... and before I
        {"Rum", "Řepa"},        // Ř after R
        {"Svoboda", "Šafránek"},
        {"Zvolen", "Žák"},
        {"adam", "Bedřich"},    // case decides nothing before the letters do
        {"Ábel", "Adam"},       // nor an accent: Á ranks as A
        {"adam", "Adam"},       // but between equal names lower case goes first
        {"Dvorský", "Dvořák"},  // ř ranks after r at once, whatever letters follow
        {"", "A"},
    };
    for (const OrderCase& c : cases) {
        const wxString a = u8(c.before), b = u8(c.after);
        EXPECT_LT(collation::czechCompare(a, b), 0) << c.before << " < " << c.after;
        EXPECT_GT(collation::czechCompare(b, a), 0) << c.after << " > " << c.before;
        EXPECT_LT(collation::czechSortKey(a), collation::czechSortKey(b)) << c.before << " < " << c.after;
    }
    EXPECT_EQ(collation::czechCompare(u8("Říha"), u8("Říha")), 0);
}

TEST(CzechOrder, ListOfNamesSortsAsInAPhoneBook) {
    std::vector<wxString> names = {u8("Žižka"), u8("Chmelař"), u8("čermák"), u8("Cibulka"), u8("Hrubý"),
                                   u8("Řezáč"), u8("Rybář"),   u8("Šindel"), u8("Sýkora"),  u8("Zeman")};
    std::sort(names.begin(), names.end(),
              [](const wxString& a, const wxString& b) { return collation::czechCompare(a, b) < 0; });
    const std::vector<wxString> expected = {u8("Cibulka"), u8("čermák"), u8("Hrubý"),  u8("Chmelař"), u8("Rybář"),
                                            u8("Řezáč"),   u8("Sýkora"), u8("Šindel"), u8("Zeman"),   u8("Žižka")};
    EXPECT_EQ(names, expected);
}

TEST(CzechSearch, IgnoresCaseAndAccents) {
    EXPECT_EQ(collation::searchFold(u8("Čeněk ŘÍHA, Žďár")), u8("cenek riha, zdar"));
    const struct {
        const char* text;
        const char* needle;
        bool found;
    } cases[] = {
        {"Řeznictví Šťastný", "stast", true},
        {"Řeznictví Šťastný", "ŘEZ", true},
        {"Pražská 5", "prazs", true},
        {"Novák", "nováková", false},
        {"Brno", "", true},
        {"", "x", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(collation::containsFolded(u8(c.text), u8(c.needle)), c.found) << c.text << " / " << c.needle;
}

// --- IČ, DIČ and e-mail checks -------------------------------------------------------------

struct CheckCase {
    const char* text;
    bool valid;
};

TEST(KontaktCheck, IcHasEightDigitsWithTheMod11CheckDigit) {
    const CheckCase cases[] = {
        {"45274649", true},                           // remainder 2: check digit 9
        {"00006947", true},                           // leading zeros belong to the number
        {"25596641", true},                           // remainder 0: check digit 1
        {"27000061", true},                           // remainder 0 again
        {"27000060", false},                          // ... where 11 - 0 taken as 0 would be wrong
        {"10000020", true},                           // remainder 1: check digit 0
        {"10000021", false},                          // ... not 11 - 1 = 10 cut to 1
        {"45274648", false},                          // one digit off
        {"4527464", false},                           // seven digits
        {"452746490", false},                         // nine digits
        {"4527464a", false},  {"45 27 46 49", true},  // spaces as people group it
        {"", false},
    };
    for (const CheckCase& c : cases) EXPECT_EQ(kontaktcheck::isIcValid(u8(c.text)), c.valid) << c.text;
}

TEST(KontaktCheck, DicIsCzechOrAnotherMembersVatNumber) {
    const CheckCase cases[] = {
        {"CZ45274649", true},      // a company: CZ and its IČ
        {"CZ7103192745", true},    // a person: CZ and ten digits
        {"CZ710319274", true},     // nine digits (born before 1954)
        {"cz 452 746 49", true},   // typed lower case with spaces
        {"CZ4527464", false},      // seven digits
        {"CZ71031927451", false},  // eleven
        {"CZ4527464A", false},     // a letter in a Czech number
        {"45274649", false},       // no prefix
        {"SK2020317068", true},
        {"DE123456789", true},
        {"ATU12345678", true},       // letters belong to some members' numbers
        {"FR1", false},              // too short
        {"NL1234567890123", false},  // thirteen characters after the prefix
        {"XX12345678", false},       // not a member
        {"DE12345-678", false},
        {"", false},
    };
    for (const CheckCase& c : cases) EXPECT_EQ(kontaktcheck::isDicValid(u8(c.text)), c.valid) << c.text;
}

TEST(KontaktCheck, EmailNeedsAnAtBetweenTwoParts) {
    const CheckCase cases[] = {
        {"info@firma.cz", true},  {"jan.novak+faktury@example.com", true},
        {"info.firma.cz", false}, {"@firma.cz", false},
        {"info@", false},         {"info @firma.cz", false},
    };
    for (const CheckCase& c : cases) EXPECT_EQ(kontaktcheck::isEmailValid(u8(c.text)), c.valid) << c.text;
}

TEST(KontaktCheck, WarningsNameEachFailedFieldAndSkipEmptyOnes) {
    const Kontakt ok(-1, u8("Alfa"), "", "45274649", "CZ45274649", "a@b.cz", true, -1);
    EXPECT_EQ(kontaktcheck::warnings(ok), "");
    EXPECT_EQ(kontaktcheck::warnings(Kontakt(-1, u8("Bez čísel"), "", "", "", "", true, -1)), "");
    const wxString all = kontaktcheck::warnings(Kontakt(-1, u8("Beta"), "", "12345678", "CZ12", "beta", true, -1));
    EXPECT_NE(all.Find(u8("IČ 12345678")), wxNOT_FOUND) << all;
    EXPECT_NE(all.Find(u8("DIČ CZ12")), wxNOT_FOUND) << all;
    EXPECT_NE(all.Find(u8("E-mail beta")), wxNOT_FOUND) << all;
    EXPECT_EQ(all.Freq('\n'), 3) << all;
}
