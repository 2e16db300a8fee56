// A contact and its address are written together: both rows or neither.
#include <gtest/gtest.h>

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
