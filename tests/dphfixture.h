// A VAT payer's company of 2024 with a counterparty that has a VAT id, and a helper that
// saves a document of a VAT classification with its items, as the document dialog does.
#pragma once

#include "dphdoklady.h"
#include "testcompany.h"

class DphFixture : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createPlatce2024("2024-03-20");
        m_dic = m_model->addKontaktSAdresou(Kontakt(-1, u8("Beta s.r.o."), "", "27082440", "CZ27082440", "", true, -1),
                                            Adresa(-1, "", "", "", "", ""));
    }
    // A payer's document with items (rate, price with VAT) of year `rok`'s rates.
    DokladForm doklad(DruhDokladu druh, const char* duzp, const char* dppd, const char* dphdruh,
                      std::vector<std::pair<int, double>> polozky, int rok = 2024, int menaid = 1, double kurz = 1,
                      bool sDic = true) {
        std::vector<DphPolozka> p;
        for (const auto& [sazba, cena] : polozky) p.push_back({sazba, cena});
        return dphDoklad(*m_model, druh, duzp, dppd, dphdruh, p, wxString(),
                         sDic ? u8("Beta s.r.o.") : u8("Bez DIČ"), menaid, kurz, rok);
    }
    // The taxpayer record of a natural person with a tax office: what a valid filing needs.
    void nastavPlatce() {
        Priznani p = m_model->priznani();
        p.setJmeno(u8("Jan"));
        p.setPrijmeni(u8("Novák"));
        p.setUlice(u8("Dlouhá"));
        p.setC_pop(12);
        p.setNaz_obce(u8("Praha"));
        p.setPsc("110 00");
        p.setDic("CZ7001011234");
        p.setEmail("jan@example.cz");
        p.setC_ufo(451);
        p.setC_pracufo(2001);
        p.setC_okec(620100);
        ASSERT_TRUE(m_model->setPriznani(p));
    }
    int druh(const char* zkratka) { return m_model->getDphDruhIdByZkratka(zkratka); }
    int m_dic = -1;
};

