// Readers of bank statements: ABO/GPC, camt.053 and CSV by a saved column mapping, each on a
// statement written here by hand, and the refusals of broken files with their exact messages.
#include <gtest/gtest.h>
#include <wx/strconv.h>

#include "testcompany.h"
#include "vypis/camt053.h"
#include "vypis/csvvypis.h"
#include "vypis/gpc.h"
#include "vypis/importvypisu.h"

using namespace vypis;

namespace {

// A fixed-width line: each field written at its position counted from 1, spaces elsewhere.
std::string radek(std::initializer_list<std::pair<size_t, std::string>> pole, size_t delka = 128) {
    std::string line(delka, ' ');
    for (const auto& [pos, text] : pole) line.replace(pos - 1, text.size(), text);
    return line + "\r\n";
}

std::string hlavicka074(const char* cislo = "007", const char* datum = "310126") {
    return radek({{1, "074"}, {4, "0000192000145399"}, {20, "Firma"}, {40, "010126"}, {46, "00000000100000"},
                  {60, "+"}, {61, "00000000200000"}, {75, "+"}, {76, "00000000050000"}, {90, "0"},
                  {91, "00000000150000"}, {105, "0"}, {106, cislo}, {109, datum}});
}

std::string pohyb075(const char* castka, const char* kod, const char* vs, const char* datum = "150126",
                     const std::string& text = "Novak") {
    return radek({{1, "075"}, {4, "0000192000145399"}, {20, "0000000123456789"}, {36, "0000000004711"},
                  {49, castka}, {61, kod}, {62, vs}, {72, "0800000308"}, {82, "0000000042"}, {92, datum},
                  {98, text}, {118, "0"}, {119, "0203"}, {123, datum}});
}

std::string cp1250(const char* utf8) {
    const wxString t = wxString::FromUTF8(utf8);
    const wxCharBuffer b = t.mb_str(wxCSConv(wxFONTENCODING_CP1250));
    return std::string(b.data());
}

}  // namespace

TEST(VypisGpc, ReadsCreditDebitReversalAndExtraLines) {
    const std::string soubor = hlavicka074() + pohyb075("000000121000", "2", "0020260001", "150126", cp1250("Žluťoučký kůň")) +
                               radek({{1, "078"}, {4, cp1250("Platba za faktury")}}, 60) +
                               pohyb075("000000050050", "1", "0000000777", "160126") +
                               pohyb075("000000010000", "4", "0000000000", "170126");
    const CteniVypisu c = cistGpc(soubor);
    ASSERT_TRUE(c.ok) << c.zprava;
    ASSERT_EQ(c.vypisy.size(), 1u);
    const Vypis& v = c.vypisy[0];
    EXPECT_EQ(v.cislo, 7);
    EXPECT_EQ(v.ucet, "19-2000145399");
    EXPECT_EQ(v.datum.FormatISODate(), "2026-01-31");
    ASSERT_EQ(v.pohyby.size(), 3u);

    const Pohyb& kredit = v.pohyby[0];
    EXPECT_TRUE(kredit.prijem);
    EXPECT_FALSE(kredit.storno);
    EXPECT_DOUBLE_EQ(kredit.castka, 1210.00);
    EXPECT_EQ(kredit.vs, "20260001");
    EXPECT_EQ(kredit.ks, "308");
    EXPECT_EQ(kredit.ss, "42");
    EXPECT_EQ(kredit.protiucet, "123456789/0800");
    EXPECT_EQ(kredit.reference, "0000000004711");
    EXPECT_EQ(kredit.nazev, u8("Žluťoučký kůň"));
    EXPECT_EQ(kredit.zprava, "Platba za faktury");
    EXPECT_EQ(kredit.mena, "CZK");
    EXPECT_EQ(kredit.datum.FormatISODate(), "2026-01-15");

    EXPECT_FALSE(v.pohyby[1].prijem);
    EXPECT_DOUBLE_EQ(v.pohyby[1].castka, 500.50);
    EXPECT_EQ(v.pohyby[1].vs, "777");
    // Code 4 undoes a debit: the money comes back, marked as a reversal.
    EXPECT_TRUE(v.pohyby[2].prijem);
    EXPECT_TRUE(v.pohyby[2].storno);
    EXPECT_EQ(v.pohyby[2].vs, "");
}

TEST(VypisGpc, RefusesBrokenFilesNamingTheLine) {
    struct Pripad {
        std::string soubor;
        const char* zprava;
    };
    const Pripad pripady[] = {
        {hlavicka074() + pohyb075("000000121000", "2", "1", "310226"), "Řádek 2: neplatné datum „310226“"},
        {hlavicka074() + pohyb075("0000001x1000", "2", "1"), "Řádek 2: částka „0000001x1000“ není číslo"},
        {hlavicka074() + pohyb075("000000121000", "3", "1"), "Řádek 2: neznámý kód účtování „3“"},
        {pohyb075("000000121000", "2", "1"), "Řádek 1: pohyb 075 před hlavičkou výpisu 074"},
        {hlavicka074() + std::string(pohyb075("000000121000", "2", "1"), 0, 50) + "\n",
         "Řádek 2: pohyb 075 je příliš krátký (50 znaků)"},
        {hlavicka074("0x7"), "Řádek 1: číslo výpisu „0x7“ není číslo"},
        {hlavicka074() + std::string("075\0\0\0", 6) + "\n", "Řádek 2: soubor není text (obsahuje řídicí znak 0x00)"},
    };
    for (const Pripad& p : pripady) {
        const CteniVypisu c = cistGpc(p.soubor);
        EXPECT_FALSE(c.ok) << p.zprava;
        EXPECT_TRUE(c.vypisy.empty());
        EXPECT_TRUE(c.zprava.StartsWith(u8(p.zprava))) << c.zprava;
    }
}

namespace {

const char* const CAMT = R"(<?xml version="1.0" encoding="UTF-8"?>
<Document xmlns="urn:iso:std:iso:20022:tech:xsd:camt.053.001.04">
 <BkToCstmrStmt>
  <GrpHdr><MsgId>1</MsgId></GrpHdr>
  <Stmt>
   <Id>S1</Id><LglSeqNb>12</LglSeqNb><CreDtTm>2026-01-31T20:00:00</CreDtTm>
   <Acct><Id><IBAN>CZ65 0800 0000 1920 0014 5399</IBAN></Id><Ccy>CZK</Ccy></Acct>
   <Ntry>
    <Amt Ccy="CZK">1210.00</Amt><CdtDbtInd>CRDT</CdtDbtInd><Sts>BOOK</Sts>
    <BookgDt><Dt>2026-01-15</Dt></BookgDt><ValDt><Dt>2026-01-14</Dt></ValDt><AcctSvcrRef>R1</AcctSvcrRef>
    <NtryDtls><TxDtls><Refs><EndToEndId>/VS/20260001/SS/42/KS/0308</EndToEndId></Refs>
     <RltdPties><Dbtr><Nm>Novák s.r.o.</Nm></Dbtr><DbtrAcct><Id><IBAN>CZ6508000000192000145399</IBAN></Id></DbtrAcct></RltdPties>
     <RmtInf><Ustrd>faktura leden</Ustrd></RmtInf></TxDtls></NtryDtls>
   </Ntry>
   <Ntry>
    <Amt Ccy="CZK">99.00</Amt><CdtDbtInd>DBIT</CdtDbtInd><Sts>PDNG</Sts><BookgDt><Dt>2026-01-16</Dt></BookgDt>
   </Ntry>
  </Stmt>
  <Stmt>
   <Id>S2</Id><ElctrncSeqNb>13</ElctrncSeqNb>
   <Acct><Id><Othr><Id>2000145399</Id></Othr></Id><Ccy>CZK</Ccy></Acct>
   <Ntry>
    <Amt Ccy="CZK">800.00</Amt><CdtDbtInd>DBIT</CdtDbtInd><Sts><Cd>BOOK</Cd></Sts>
    <BookgDt><DtTm>2026-02-01T10:00:00</DtTm></BookgDt><AcctSvcrRef>B7</AcctSvcrRef>
    <NtryDtls>
     <TxDtls><Amt Ccy="CZK">300.00</Amt><Refs><EndToEndId>NOTPROVIDED</EndToEndId></Refs>
      <RltdPties><Cdtr><Pty><Nm>Dodavatel A</Nm></Pty></Cdtr><CdtrAcct><Id><Othr><Id>19-123/0100</Id></Othr></Id></CdtrAcct></RltdPties>
      <RmtInf><Ustrd>VS:555</Ustrd></RmtInf></TxDtls>
     <TxDtls><AmtDtls><TxAmt><Amt Ccy="CZK">500.00</Amt></TxAmt></AmtDtls><Refs><EndToEndId>0000000666</EndToEndId></Refs></TxDtls>
    </NtryDtls>
   </Ntry>
   <Ntry>
    <Amt Ccy="CZK">50.00</Amt><CdtDbtInd>DBIT</CdtDbtInd><RvslInd>true</RvslInd><Sts>BOOK</Sts>
    <BookgDt><Dt>2026-02-02</Dt></BookgDt><NtryDtls><TxDtls><RmtInf><Strd><CdtrRefInf><Ref>VS1234</Ref></CdtrRefInf></Strd></RmtInf></TxDtls></NtryDtls>
   </Ntry>
  </Stmt>
 </BkToCstmrStmt>
</Document>)";

}  // namespace

TEST(VypisCamt053, ReadsTwoStatementsWithABatchAndSkipsPendingEntries) {
    ASSERT_TRUE(jeCamt053(CAMT));
    const CteniVypisu c = cistCamt053(CAMT);
    ASSERT_TRUE(c.ok) << c.zprava;
    ASSERT_EQ(c.vypisy.size(), 2u);
    const Vypis& s1 = c.vypisy[0];
    EXPECT_EQ(s1.cislo, 12);
    EXPECT_EQ(s1.ucet, "19-2000145399/0800");
    ASSERT_EQ(s1.pohyby.size(), 1u);  // the pending entry is not a movement yet
    const Pohyb& p = s1.pohyby[0];
    EXPECT_TRUE(p.prijem);
    EXPECT_DOUBLE_EQ(p.castka, 1210.0);
    EXPECT_EQ(p.datum.FormatISODate(), "2026-01-15");
    EXPECT_EQ(p.vs, "20260001");
    EXPECT_EQ(p.ss, "42");
    EXPECT_EQ(p.ks, "308");
    EXPECT_EQ(p.protiucet, "19-2000145399/0800");
    EXPECT_EQ(p.nazev, u8("Novák s.r.o."));
    EXPECT_EQ(p.zprava, "faktura leden");
    EXPECT_EQ(p.reference, "R1");

    const Vypis& s2 = c.vypisy[1];
    EXPECT_EQ(s2.cislo, 13);
    ASSERT_EQ(s2.pohyby.size(), 3u);  // the batch gives one movement per transaction
    EXPECT_FALSE(s2.pohyby[0].prijem);
    EXPECT_DOUBLE_EQ(s2.pohyby[0].castka, 300.0);
    EXPECT_EQ(s2.pohyby[0].vs, "555");
    EXPECT_EQ(s2.pohyby[0].nazev, "Dodavatel A");
    EXPECT_EQ(s2.pohyby[0].protiucet, "19-123/0100");
    EXPECT_EQ(s2.pohyby[0].reference, "B7/1");
    EXPECT_DOUBLE_EQ(s2.pohyby[1].castka, 500.0);
    EXPECT_EQ(s2.pohyby[1].vs, "666");
    EXPECT_EQ(s2.pohyby[1].reference, "B7/2");
    EXPECT_EQ(s2.pohyby[1].datum.FormatISODate(), "2026-02-01");
    EXPECT_TRUE(s2.pohyby[2].storno);
    EXPECT_EQ(s2.pohyby[2].vs, "1234");
}

TEST(VypisCamt053, RefusesBrokenDocumentsNamingTheElement) {
    const std::string dobry = CAMT;
    auto zmenit = [&](const std::string& co, const std::string& za) {
        std::string s = dobry;
        s.replace(s.find(co), co.size(), za);
        return s;
    };
    struct Pripad {
        std::string soubor;
        const char* zprava;
    };
    const Pripad pripady[] = {
        {zmenit("<CdtDbtInd>CRDT</CdtDbtInd>", ""), "Element Ntry (řádek 8): chybí CdtDbtInd"},
        {zmenit("1210.00", "1210,00"), "Element Amt (řádek 9): částka „1210,00“ není číslo"},
        {zmenit("<CdtDbtInd>CRDT", "<CdtDbtInd>CRDX"), "Element CdtDbtInd (řádek 9): neznámý směr „CRDX“"},
        {zmenit("<Dt>2026-01-15</Dt>", "<Dt>2026-02-30</Dt>"), "Element BookgDt (řádek 10): neplatné datum"},
        {zmenit("<AmtDtls><TxAmt><Amt Ccy=\"CZK\">500.00</Amt></TxAmt></AmtDtls>", ""),
         "Element TxDtls (řádek 29): položka dávky nemá částku (Amt)"},
        {zmenit("</BkToCstmrStmt>", ""), "Soubor není platné XML (řádek"},
        {"<Document><Other/></Document>", "Soubor není výpis camt.053 (chybí Document/BkToCstmrStmt)"},
    };
    for (const Pripad& p : pripady) {
        const CteniVypisu c = cistCamt053(p.soubor);
        EXPECT_FALSE(c.ok) << p.zprava;
        EXPECT_TRUE(c.vypisy.empty());
        EXPECT_TRUE(c.zprava.StartsWith(u8(p.zprava))) << c.zprava;
    }
}

TEST(VypisCsv, ReadsByTheSavedMappingInEitherEncoding) {
    CsvMapovani m;
    m.oddelovac = ";";
    m.hlavicka = 1;
    m.datum = 1;
    m.castka = 3;
    m.vs = 4;
    m.protiucet = 2;
    m.kodBanky = 6;
    m.zprava = 5;
    // The mapping survives the round trip through the settings text.
    const CsvMapovani ulozene = CsvMapovani::fromString(m.toString());
    EXPECT_EQ(ulozene.toString(), m.toString());

    const char* const obsah =
        "Datum;Protiúčet;Částka;VS;Zpráva;Banka\r\n"
        "15.01.2026;19-2000145399;1 210,00;0020260001;Platba faktury;0800\r\n"
        "2026-01-16;;-500,50;;\"Nájem; leden VS 777\";\r\n"
        ";;;;;\r\n";
    for (const std::string& bytes : {std::string(obsah), cp1250(obsah)}) {
        const CteniVypisu c = cistCsv(bytes, ulozene);
        ASSERT_TRUE(c.ok) << c.zprava;
        ASSERT_EQ(c.vypisy.size(), 1u);
        const std::vector<Pohyb>& p = c.vypisy[0].pohyby;
        ASSERT_EQ(p.size(), 2u);
        EXPECT_TRUE(p[0].prijem);
        EXPECT_DOUBLE_EQ(p[0].castka, 1210.0);
        EXPECT_EQ(p[0].vs, "20260001");
        EXPECT_EQ(p[0].protiucet, "19-2000145399/0800");
        EXPECT_EQ(p[0].datum.FormatISODate(), "2026-01-15");
        EXPECT_FALSE(p[1].prijem);
        EXPECT_DOUBLE_EQ(p[1].castka, 500.5);
        EXPECT_EQ(p[1].vs, "777");  // from the message when the symbol column is empty
        EXPECT_EQ(p[1].zprava, u8("Nájem; leden VS 777"));
    }
}

TEST(VypisCsv, RefusesBadLinesAndAMissingMapping) {
    CsvMapovani m;
    m.datum = 1;
    m.castka = 2;
    struct Pripad {
        const char* soubor;
        const char* zprava;
    };
    const Pripad pripady[] = {
        {"Datum;Castka\n15.01.2026;12.500\n", "Řádek 2: Částka: „12.500“ je nejednoznačné."},
        {"Datum;Castka\n15.01.2026;12,5x\n", "Řádek 2: Částka: „12,5x“ není platná částka."},
        {"Datum;Castka\n31.2.2024;100\n", "Řádek 2: Datum: „31.2.2024“ není platné datum"},
        {"Datum;Castka\n15.01.2026;0\n", "Řádek 2: Částka nemůže být nulová"},
        {"Datum;Castka\n15.01.2026\n", "Řádek 2: řádek má 1 sloupců, mapování potřebuje 2"},
        {"Datum;Castka\n", "Soubor neobsahuje žádný pohyb"},
    };
    for (const Pripad& p : pripady) {
        const CteniVypisu c = cistCsv(p.soubor, m);
        EXPECT_FALSE(c.ok) << p.zprava;
        EXPECT_TRUE(c.zprava.StartsWith(u8(p.zprava))) << c.zprava;
    }
    EXPECT_EQ(cistVypis("a;b\n1;2\n", CsvMapovani{}).zprava,
              u8("Soubor není výpis ABO/GPC ani camt.053; pro výpis CSV nastavte mapování sloupců"));
    EXPECT_EQ(cistVypis("", m).zprava, u8("Soubor výpisu je prázdný"));
}

TEST(VypisSymboly, FindsTheVariableSymbolAsCzechBanksWriteIt) {
    struct Pripad {
        const char* text;
        const char* vs;
    };
    const Pripad pripady[] = {
        {"/VS/123/SS/456/KS/0308", "123"}, {"VS:0000123", "123"}, {"VS 99", "99"}, {"vs123 faktura", "123"},
        {"0000001234", "1234"},            {"12345678901", ""},   {"NOTPROVIDED", ""}, {"platba 123", ""},
        {"KS:0308", ""},                   {"", ""},
    };
    for (const Pripad& p : pripady) EXPECT_EQ(symbolZTextu(p.text), p.vs) << p.text;

    const std::pair<const char*, const char*> ucty[] = {
        {"CZ65 0800 0000 1920 0014 5399", "19-2000145399/0800"},
        {"000019-2000145399/0800", "19-2000145399/0800"},
        {"0000192000145399", "19-2000145399"},
        {"0000000123456789", "123456789"},
        {"DE89370400440532013000", "DE89370400440532013000"},
        {"0000000000000000", ""},
    };
    for (const auto& [ucet, vysledek] : ucty) EXPECT_EQ(normalizovatUcet(ucet), vysledek) << ucet;
}
