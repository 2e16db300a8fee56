// The taxpayer record: the checks before it is stored, the representative codes and kinds,
// the first record made from the company, and storing it in the company file.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "dph/priznaniform.h"
#include "testcompany.h"

namespace {

Priznani complete() {
    Priznani p;
    p.setJmeno(u8("Jan"));
    p.setPrijmeni(u8("Novák"));
    p.setUlice(u8("Dlouhá"));
    p.setNaz_obce(u8("Brno"));
    p.setC_okec(620100);
    p.setEmail("jan@example.cz");
    p.setValid(true);
    return p;
}

Priznani fyzicka() {
    Priznani p = complete();
    p.setZast_typ("F");
    p.setZast_jmeno(u8("Eva"));
    p.setZast_prijmeni(u8("Malá"));
    return p;
}

Priznani pravnicka() {
    Priznani p = complete();
    p.setZast_typ("P");
    p.setZast_nazev(u8("Poradci s.r.o."));
    p.setOpr_jmeno(u8("Petr"));
    p.setOpr_prijmeni(u8("Velký"));
    p.setOpr_postaveni(u8("jednatel"));
    return p;
}

struct CheckCase {
    const char* name;
    std::function<Priznani()> record;
    const char* message;  // "" when the record is accepted
    const char* field;
};
void PrintTo(const CheckCase& c, std::ostream* os) { *os << c.name; }

}  // namespace

class PriznaniCheck : public ::testing::TestWithParam<CheckCase> {};

TEST_P(PriznaniCheck, FirstFailingEntryIsReported) {
    const CheckCase& c = GetParam();
    const priznaniform::Chyba chyba = priznaniform::check(c.record());
    EXPECT_EQ(chyba.zprava, u8(c.message));
    EXPECT_EQ(chyba.pole, c.field);
}

#define WITH(base, setter, value) \
    [] {                          \
        Priznani p = base();      \
        p.setter(value);          \
        return p;                 \
    }

INSTANTIATE_TEST_SUITE_P(
    Taxpayer, PriznaniCheck,
    ::testing::Values(
        CheckCase{"complete", complete, "", ""},
        CheckCase{"blank_first_name", WITH(complete, setJmeno, "  "), "Jméno nemůže být prázdné", "jmeno"},
        CheckCase{"first_name_before_street",
                  [] {
                      Priznani p = complete();
                      p.setUlice("");
                      p.setJmeno("");
                      return p;
                  },
                  "Jméno nemůže být prázdné", "jmeno"},
        CheckCase{"surname", WITH(complete, setPrijmeni, ""), "Příjmení nemůže být prázdné", "prijmeni"},
        CheckCase{"street", WITH(complete, setUlice, ""), "Ulice nemůže být prázdná", "ulice"},
        CheckCase{"town", WITH(complete, setNaz_obce, ""), "Obec nemůže být prázdná", "naz_obce"},
        CheckCase{"activity", WITH(complete, setC_okec, 0), "Hlavní ekonomická činnost nemůže být prázdná", "c_okec"},
        CheckCase{"neither_mail_nor_box", WITH(complete, setEmail, ""),
                  "Vyplňte buď email\nnebo identifikátor datové schránky", "email"},
        CheckCase{"data_box_instead_of_mail",
                  [] {
                      Priznani p = complete();
                      p.setEmail("");
                      p.setId_dats("abc123x");
                      return p;
                  },
                  "", ""},
        CheckCase{"person_complete", fyzicka, "", ""},
        CheckCase{"person_first_name", WITH(fyzicka, setZast_jmeno, ""), "Jméno podepisující osoby nemůže být prázdné",
                  "zast_jmeno"},
        CheckCase{"person_surname", WITH(fyzicka, setZast_prijmeni, ""),
                  "Příjmení podepisující osoby nemůže být prázdné", "zast_prijmeni"},
        CheckCase{"person_needs_no_company_name", WITH(fyzicka, setZast_nazev, ""), "", ""},
        CheckCase{"company_complete", pravnicka, "", ""},
        CheckCase{"company_name", WITH(pravnicka, setZast_nazev, ""), "Název právnické osoby nemůže být prázdný",
                  "zast_nazev"},
        CheckCase{"company_needs_no_person_name", WITH(pravnicka, setZast_jmeno, ""), "", ""},
        CheckCase{"authorised_first_name", WITH(pravnicka, setOpr_jmeno, ""),
                  "Jméno oprávněné osoby nemůže být prázdné", "opr_jmeno"},
        CheckCase{"authorised_surname", WITH(pravnicka, setOpr_prijmeni, ""),
                  "Příjmení oprávněné osoby nemůže být prázdné", "opr_prijmeni"},
        CheckCase{"authorised_relation", WITH(pravnicka, setOpr_postaveni, ""),
                  "Vztah oprávněné osoby k právnické osobě nemůže být prázdný", "opr_postaveni"},
        CheckCase{"taxpayer_before_representative",
                  [] {
                      Priznani p = pravnicka();
                      p.setZast_nazev("");
                      p.setEmail("");
                      return p;
                  },
                  "Vyplňte buď email\nnebo identifikátor datové schránky", "email"}),
    [](const auto& i) { return std::string(i.param.name); });

#undef WITH

TEST(PriznaniRepresentative, CodesAreThePartBeforeTheDescription) {
    const wxArrayString texts = priznaniform::zastKodTexty();
    const char* const codes[] = {"1", "2", "3", "4a", "4b", "4c", "5a", "5b", "6a", "6b", "7a", "7b"};
    ASSERT_EQ(texts.size(), WXSIZEOF(codes));
    for (size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(priznaniform::zastKodZTextu(texts[i]), codes[i]) << texts[i];
        EXPECT_EQ(priznaniform::zastKodIndex(codes[i]), static_cast<int>(i));
    }
    EXPECT_EQ(texts[5], u8("4c -právnická osoba vykonávající daňové poradenství"));
    EXPECT_EQ(priznaniform::zastKodIndex(""), -1);
    EXPECT_EQ(priznaniform::zastKodIndex("8"), -1);
}

TEST(PriznaniRepresentative, OnlyTheFieldsOfTheChosenKindAreKept) {
    EXPECT_EQ(priznaniform::zastTypIndex(priznaniform::zastTypKod(2)), 2);
    EXPECT_EQ(priznaniform::zastTypKod(0), "");
    EXPECT_EQ(priznaniform::zastTypIndex("X"), 0);

    Priznani p = pravnicka();
    p.setZast_jmeno(u8("Eva"));
    p.setZast_dat_nar("1980-02-29");
    p.setZast_kod("4c");
    const Priznani company = priznaniform::bezNepouzitych(p);
    EXPECT_EQ(company.zast_jmeno(), "");
    EXPECT_EQ(company.zast_dat_nar(), "");
    EXPECT_EQ(company.zast_nazev(), u8("Poradci s.r.o."));
    EXPECT_EQ(company.zast_kod(), "4c");
    EXPECT_EQ(company.jmeno(), u8("Jan"));  // the taxpayer's own fields stay

    p.setZast_typ("");
    const Priznani none = priznaniform::bezNepouzitych(p);
    EXPECT_EQ(none.zast_nazev(), "");
    EXPECT_EQ(none.opr_postaveni(), "");
    EXPECT_EQ(none.zast_kod(), "");
}

struct FirmaCase {
    const char* name;
    const char* nazev;
    const char* ulice;
    const char* cp;
    const char* jmeno;
    const char* prijmeni;
    const char* titul;
    const char* uliceOut;
    int c_pop;
    const char* c_orient;
};
void PrintTo(const FirmaCase& c, std::ostream* os) { *os << c.name; }
class PriznaniFromCompany : public ::testing::TestWithParam<FirmaCase> {};

TEST_P(PriznaniFromCompany, SplitsNameAndAddress) {
    const FirmaCase& c = GetParam();
    Firma firma;
    firma.setNazev(u8(c.nazev));
    firma.setDic("CZ7001011234");
    firma.setEmail("info@example.cz");
    firma.setTelefon("+420 777 123 456");
    Adresa adresa;
    adresa.setUlice(u8(c.ulice));
    adresa.setCp(c.cp);
    adresa.setMisto(u8("Hradec Králové"));
    adresa.setPsc("500 02");
    const Priznani p = priznaniform::zFirmy(firma, adresa);
    EXPECT_EQ(p.jmeno(), u8(c.jmeno));
    EXPECT_EQ(p.prijmeni(), u8(c.prijmeni));
    EXPECT_EQ(p.titul(), u8(c.titul));
    EXPECT_EQ(p.ulice(), u8(c.uliceOut));
    EXPECT_EQ(p.c_pop(), c.c_pop);
    EXPECT_EQ(p.c_orient(), c.c_orient);
    EXPECT_EQ(p.naz_obce(), u8("Hradec Králové"));
    EXPECT_EQ(p.psc(), "50002");
    EXPECT_EQ(p.dic(), "7001011234");
    EXPECT_EQ(p.stat(), u8("ČESKÁ REPUBLIKA"));
    EXPECT_EQ(p.email(), "info@example.cz");
    EXPECT_EQ(p.c_telef(), "+420 777 123 456");
}

INSTANTIATE_TEST_SUITE_P(
    Company, PriznaniFromCompany,
    ::testing::Values(
        FirmaCase{"person", "Jan Novák", "Dlouhá", "1234/5a", "Jan", "Novák", "", "Dlouhá", 1234, "5a"},
        FirmaCase{"person_with_title", "Ing. Jan Novák", "Dlouhá", "12", "Jan", "Novák", "Ing.", "Dlouhá", 12, ""},
        FirmaCase{"two_first_names", "Jan Pavel Novák", "Krátká 7/2", "", "Jan Pavel", "Novák", "", "Krátká", 7, "2"},
        FirmaCase{"company", "Alfa Stavby s. r. o.", "Nábřeží", "", "", "Alfa Stavby s. r. o.", "", "Nábřeží", 0, ""},
        FirmaCase{"name_with_number", "Studio 21", "U Lesa", "x", "", "Studio 21", "", "U Lesa", 0, ""},
        FirmaCase{"single_word", "Novák", "", "", "", "Novák", "", "", 0, ""}),
    [](const auto& i) { return std::string(i.param.name); });

using PriznaniStore = TestCompany;

TEST_F(PriznaniStore, NewRecordComesFromTheCompanyAndStoredOneStays) {
    createPlatce2024("2024-05-01");
    Firma firma = m_model->firma();
    firma.setNazev(u8("Jana Dvořáková"));
    firma.setDic("CZ8051011234");
    ASSERT_TRUE(m_model->setFirma(firma));
    Adresa adresa = m_model->getAdresa(firma.adresaid());
    adresa.setMisto(u8("Tábor"));
    ASSERT_TRUE(m_model->editAdresa(adresa));
    m_model->fillPriznani();
    EXPECT_EQ(m_model->priznani().jmeno(), u8("Jana"));
    EXPECT_EQ(m_model->priznani().dic(), "8051011234");
    EXPECT_EQ(m_model->priznani().naz_obce(), u8("Tábor"));
    EXPECT_EQ(scalar("SELECT count(*) FROM priznani"), 0);

    Priznani p = fyzicka();
    p.setStat("SLOVENSKO");
    p.setC_ufo(453);
    p.setZast_dat_nar("1975-12-31");
    ASSERT_TRUE(m_model->setPriznani(p));
    p.setPrijmeni(u8("O'Brien"));
    ASSERT_TRUE(m_model->setPriznani(p));
    EXPECT_EQ(scalar("SELECT count(*) FROM priznani"), 1);
    EXPECT_EQ(text("SELECT stat FROM priznani"), u8("ČESKÁ REPUBLIKA"));

    // Opened again, the stored row wins over the company's data.
    const wxString path = m_model->databasePath();
    m_model->closeDatabase();
    ASSERT_TRUE(m_model->openDatabase(path));
    m_model->fillData();
    const Priznani& back = m_model->priznani();
    EXPECT_EQ(back.prijmeni(), u8("O'Brien"));
    EXPECT_EQ(back.c_ufo(), 453);
    EXPECT_EQ(back.zast_jmeno(), u8("Eva"));
    EXPECT_EQ(back.zast_dat_nar(), "1975-12-31");
    EXPECT_EQ(back.stat(), u8("ČESKÁ REPUBLIKA"));
}
