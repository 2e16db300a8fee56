#include "fakturaprint.h"

#include <algorithm>
#include <cmath>

#include "fakturace/castky.h"
#include "fakturace/qrplatba.h"
#include "zavpohprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// A missing source record fills its placeholders with a single space, so that a template
// line made of nothing else keeps its height.
const wxString CHYBI = " ";

wxString datum(const wxDateTime& d) { return d.IsValid() ? d.Format("%x") : CHYBI; }
wxString castka(double value) { return wxString::Format("%.2f", value); }

// Every occurrence of each placeholder in the line becomes its value.
wxString nahrad(const wxString& text, std::initializer_list<std::pair<const char*, wxString>> hodnoty) {
    wxString line = text;
    for (const auto& [key, value] : hodnoty)
        if (line.Contains(key)) line.Replace(key, value);
    return line;
}

bool maPolozky(const TableRowElement& row) {
    for (const wxString& cell : row.value)
        if (cell.Contains("{polozka-")) return true;
    return false;
}

bool maSazby(const TableRowElement& row) {
    for (const wxString& cell : row.value)
        if (cell.Contains("{dph-")) return true;
    return false;
}

// The page height left between the top and bottom margins of an A4 sheet, mm.
int vyskaStrany(const Document& doc) {
    return 297 - doc.layout.marginTop - doc.layout.marginBottom - (doc.layout.headerLine ? 6 : 0) - 8;
}

}  // namespace

FakturaTisk nactiFakturu(DbModel& model, int id, bool* ok) {
    FakturaTisk d;
    d.faktura = model.getFaktura(id);
    if (ok) *ok = d.faktura.isValid();
    if (!d.faktura.isValid()) return d;
    const Faktura& f = d.faktura;
    d.firma = model.firma();
    if (d.firma.adresaid() > 0 && model.hasAdresa(d.firma.adresaid())) {
        d.firmaAdresa = model.getAdresa(d.firma.adresaid());
        d.maFirmaAdresu = true;
    }
    if (f.protistranaid() > 0 && model.hasKontakt(f.protistranaid())) {
        d.kontakt = model.getKontakt(f.protistranaid());
        d.maKontakt = true;
        if (d.kontakt.adresaid() > 0 && model.hasAdresa(d.kontakt.adresaid())) {
            d.kontaktAdresa = model.getAdresa(d.kontakt.adresaid());
            d.maKontaktAdresu = true;
        }
    }
    if (f.uhradaid() > 0 && model.hasFaUhrada(f.uhradaid())) {
        const FaUhrada u = model.getFaUhrada(f.uhradaid());
        d.uhrada = u.uhrada();
        d.maUhradu = true;
        d.pokladnou = u.pokladnou();
    }
    if (f.bankaid() > 0 && model.hasBanka(f.bankaid())) {
        d.banka = model.getBanka(f.bankaid());
        d.maBanku = true;
    }
    d.kodMena = model.kodMena(f.menaid());
    d.zkratkaMena = d.kodMena;
    for (const auto& p : model.fapolozkyByFakturaId(id)) {
        d.polozky.push_back(*p);
        d.sazbyPolozek.push_back(p->sazbaid() > 0 ? model.getDphSazbaValue(p->sazbaid()) : 0);
    }
    if (f.platce()) d.rekapitulace = model.dphFakturaSouhrn(id, true);
    d.qrtext = qrplatba::qrtext(model, f);
    return d;
}

FakturaTisk ukazkovaFaktura() {
    FakturaTisk d;
    DbModel* model = DbModel::instance();
    if (model && model->isOpen()) {
        d.firma = model->firma();
        if (d.firma.adresaid() > 0 && model->hasAdresa(d.firma.adresaid())) {
            d.firmaAdresa = model->getAdresa(d.firma.adresaid());
            d.maFirmaAdresu = true;
        }
    } else {
        d.firma.setNazev(u8("Vzorová firma s.r.o."));
        d.firma.setIc("12345678");
        d.firma.setDic("CZ12345678");
        d.firma.setPlatce(true);
        d.firmaAdresa.setUlice(u8("Hlavní"));
        d.firmaAdresa.setCp("1");
        d.firmaAdresa.setMisto("Praha");
        d.firmaAdresa.setPsc("110 00");
        d.firmaAdresa.setZeme(u8("Česká republika"));
        d.maFirmaAdresu = true;
    }
    const wxDateTime dnes = wxDateTime::Today();
    Faktura& f = d.faktura;
    f.setId(1);
    f.setCislo("FV-00001");
    f.setVs("00001");
    f.setKs("0308");
    f.setVydana(true);
    f.setPlatce(true);
    f.setVystaveni(dnes);
    f.setDuzp(dnes);
    f.setSplatnost(dnes + wxDateSpan::Days(14));
    d.kontakt.setNazev(u8("Odběratel s.r.o."));
    d.kontakt.setIc("87654321");
    d.kontakt.setDic("CZ87654321");
    d.maKontakt = true;
    d.kontaktAdresa.setUlice(u8("Nádražní"));
    d.kontaktAdresa.setCp("25");
    d.kontaktAdresa.setMisto("Brno");
    d.kontaktAdresa.setPsc("602 00");
    d.kontaktAdresa.setZeme(u8("Česká republika"));
    d.maKontaktAdresu = true;
    d.uhrada = u8("Převodem");
    d.maUhradu = true;
    d.banka.setCislouctu("19-2000145399");
    d.banka.setKodbanky("0800");
    d.banka.setIban("CZ6508000000192000145399");
    d.maBanku = true;
    d.kodMena = d.zkratkaMena = "CZK";
    double celkem = 0;
    FaDphSazba rekap{21, 0, 0};
    for (int i = 1; i <= 3; ++i) {
        FaPolozka p;
        p.setPopis(wxString::Format(u8("Položka č.%d"), i));
        p.setMj("ks");
        p.setPocet(i);
        p.setCenamj(100.0 * i);
        p.setBezdph(true);
        const castky::Polozka c = castky::polozka(true, true, p.pocet(), p.cenamj(), 21, dnes);
        p.setDph(c.dph);
        p.setCelkem(c.celkem);
        d.polozky.push_back(p);
        d.sazbyPolozek.push_back(21);
        celkem += c.celkem;
        rekap.zaklad += c.celkem - c.dph;
        rekap.dph += c.dph;
    }
    f.setCelkem(celkem);
    d.rekapitulace.push_back(rekap);
    qrplatba::Platba platba;
    platba.iban = d.banka.iban();
    platba.celkem = celkem;
    platba.mena = d.kodMena;
    platba.splatnost = f.splatnost();
    platba.vs = f.vs();
    platba.ks = f.ks();
    d.qrtext = qrplatba::qrtext(platba);
    return d;
}

wxString parseFirmaLine(const wxString& text, const FakturaTisk& d) {
    if (!text.Contains("{firma-")) return text;
    const Firma& f = d.firma;
    const Adresa& a = d.firmaAdresa;
    const bool adr = d.maFirmaAdresu;
    return nahrad(text, {{"{firma-nazev}", f.nazev()},
                         {"{firma-ulice}", adr ? wxString::Format("%s %s", a.ulice(), a.cp()) : CHYBI},
                         {"{firma-misto}", adr ? a.misto() : CHYBI},
                         {"{firma-psc}", adr ? a.psc() : CHYBI},
                         {"{firma-zeme}", adr ? a.zeme() : CHYBI},
                         {"{firma-registrace}", f.registrace()},
                         {"{firma-ic}", f.ic()},
                         {"{firma-dic}", f.dic()},
                         {"{firma-telefon}", f.telefon()},
                         {"{firma-email}", f.email()},
                         {"{firma-www}", f.www()}});
}

wxString parseFakturaLine(const wxString& text, const FakturaTisk& d) {
    if (!text.Contains("{faktura-")) return text;
    const Faktura& f = d.faktura;
    const bool ucet = d.maUhradu && !d.pokladnou && d.maBanku && !d.banka.cislouctu().empty();
    return nahrad(text, {{"{faktura-cislo}", f.cislo()},
                         {"{faktura-celkem}", castka(f.celkem())},
                         {"{faktura-vystaveni}", datum(f.vystaveni())},
                         {"{faktura-splatnost}", datum(f.splatnost())},
                         {"{faktura-duzp}", datum(f.duzp())},
                         {"{faktura-uhrada}", d.maUhradu ? d.uhrada : CHYBI},
                         {"{faktura-mena}", d.zkratkaMena},
                         {"{faktura-banka}",
                          ucet ? wxString::Format("%s/%s", d.banka.cislouctu(), d.banka.kodbanky()) : CHYBI},
                         {"{faktura-vs}", f.vs()},
                         {"{faktura-ks}", f.ks()},
                         {"{faktura-ss}", f.ss()}});
}

wxString parseKontaktLine(const wxString& text, const FakturaTisk& d) {
    if (!text.Contains("{kontakt-")) return text;
    const Kontakt& k = d.kontakt;
    const Adresa& a = d.kontaktAdresa;
    const bool kon = d.maKontakt, adr = d.maKontakt && d.maKontaktAdresu;
    return nahrad(text, {{"{kontakt-nazev}", kon ? k.nazev() : CHYBI},
                         {"{kontakt-ulice}", adr ? wxString::Format("%s %s", a.ulice(), a.cp()) : CHYBI},
                         {"{kontakt-misto}", adr ? a.misto() : CHYBI},
                         {"{kontakt-psc}", adr ? a.psc() : CHYBI},
                         {"{kontakt-zeme}", adr ? a.zeme() : CHYBI},
                         {"{kontakt-ic}", kon ? k.ic() : CHYBI},
                         {"{kontakt-dic}", kon ? k.dic() : CHYBI}});
}

wxString parseLine(const wxString& line, const FakturaTisk& d) {
    if (!line.Contains("{")) return line;
    return parseKontaktLine(parseFakturaLine(parseFirmaLine(line, d), d), d);
}

wxString parsePolozkaLine(const wxString& text, const FaPolozka& p, int sazba, int index) {
    return nahrad(text, {{"{polozka-cislo}", wxString::Format("%d", index + 1)},
                         {"{polozka-popis}", p.popis()},
                         {"{polozka-pocet}", wxString::Format("%.3f", p.pocet())},
                         {"{polozka-mj}", p.mj()},
                         {"{polozka-cenamj}", castka(p.cenamj())},
                         {"{polozka-sazba}", wxString::Format("%d", sazba)},
                         {"{polozka-dph}", castka(p.dph())},
                         {"{polozka-celkem}", castka(p.celkem())}});
}

wxString parseSazbaLine(const wxString& text, int sazba, double zaklad, double dph) {
    return nahrad(text, {{"{dph-zaklad}", castka(zaklad)},
                         {"{dph-dph}", castka(dph)},
                         {"{dph-sazba}", wxString::Format("%d%%", sazba)}});
}

namespace {

// Repeats the row at `index` once per entry (filled by `fill`), each copy one row height
// below the one before. When the rows reach the bottom of the page they go on at the top of
// the next one. The elements below the row (in its section and the later ones) follow the
// last copy, on a new page when they no longer fit.
template <class Fill>
void opakujRadek(Document& doc, size_t index, size_t count, Fill fill) {
    const auto* vzor = dynamic_cast<const TableRowElement*>(doc.element(index));
    const TableRowElement row = *vzor;
    const int h = std::max(1, static_cast<int>(std::ceil(row.height(false))));
    const int top = static_cast<int>(std::lround(row.posY()));
    const int limit = vyskaStrany(doc);

    // The elements the rows push: below the row in its section, and every later section.
    std::vector<Element*> dalsi;
    int konec = top + h;  // bottom of what follows
    for (size_t i = 0; i < doc.count(); ++i) {
        Element* e = doc.element(i);
        if (i == index || e->page != row.page) continue;
        if (e->section > row.section || (e->section == row.section && e->posY() >= top + h)) {
            dalsi.push_back(e);
            konec = std::max(konec, static_cast<int>(std::ceil(e->posY() + e->height(false))));
        }
    }
    const int zbytek = konec - (top + h);

    std::vector<TableRowElement> kopie;
    int page = row.page, y = top;
    for (size_t n = 0; n < count; ++n) {
        if (y + h > limit && y > 0) {
            ++page;
            y = 0;
        }
        TableRowElement r = row;
        for (wxString& cell : r.value) cell = fill(cell, n);
        r.page = page;
        r.pos.y = y;
        kopie.push_back(r);
        y += h;
    }
    // What followed the row moves under the last copy.
    int posunStrany = page - row.page;
    int zacatek = y;
    if (zacatek + zbytek > limit && zacatek > 0) {
        ++posunStrany;
        zacatek = 0;
    }
    for (Element* e : dalsi) {
        e->page += posunStrany;
        moveElement(*e, 0, zacatek - (top + h));
    }
    doc.deleteElement(index);
    for (const TableRowElement& r : kopie) doc.addElement(r);
    doc.pages = std::max(doc.pages, doc.lastElementPage());
}

}  // namespace

void moveElements(std::vector<Element*>& elements, int from, int by) {
    for (Element* e : elements)
        if (e->posY() >= from) moveElement(*e, 0, by);
}

void vyplnSablonu(Document& doc, const FakturaTisk& d) {
    // Texts first: company, invoice and customer placeholders, and the pictures.
    for (const auto& item : doc.elements()) {
        Element* e = item.get();
        if (auto* t = dynamic_cast<TextElement*>(e)) {
            t->value = parseLine(t->value, d);
        } else if (auto* p = dynamic_cast<TextParagraphElement*>(e)) {
            for (wxString& line : p->value) line = parseLine(line, d);
        } else if (auto* r = dynamic_cast<TableRowElement*>(e)) {
            for (wxString& cell : r->value) cell = parseLine(cell, d);
        } else if (auto* i = dynamic_cast<ImageElement*>(e)) {
            if (i->path == ImageElement::PATH_QR) {
                i->qr = d.qrtext;
            } else if (i->path == ImageElement::PATH_LOGO) {
                i->path = d.firma.logo();
            } else if (i->path == ImageElement::PATH_STAMP) {
                i->path = d.firma.razitko();
            }
        }
    }
    // Then the repeated rows, top to bottom. The template rows are picked first, so that an
    // item whose own text holds a placeholder is never taken for a template row.
    doc.sortElements();
    std::vector<Element*> vzory;
    for (size_t i = 0; i < doc.count(); ++i) {
        const auto* r = dynamic_cast<const TableRowElement*>(doc.element(i));
        if (r && ((r->section == DOCSECTION_ITEMS && maPolozky(*r)) || maSazby(*r))) vzory.push_back(doc.element(i));
    }
    for (Element* vzor : vzory) {
        size_t index = 0;
        while (doc.element(index) != vzor) ++index;
        const auto* r = static_cast<const TableRowElement*>(vzor);
        if (r->section == DOCSECTION_ITEMS && maPolozky(*r)) {
            opakujRadek(doc, index, d.polozky.size(), [&](const wxString& cell, size_t n) {
                return parsePolozkaLine(cell, d.polozky[n], n < d.sazbyPolozek.size() ? d.sazbyPolozek[n] : 0,
                                        static_cast<int>(n));
            });
        } else {
            opakujRadek(doc, index, d.rekapitulace.size(), [&](const wxString& cell, size_t n) {
                const FaDphSazba& s = d.rekapitulace[n];
                return parseSazbaLine(cell, s.sazba, s.zaklad, s.dph);
            });
        }
    }
    doc.sortElements();
}

FakturaXmlPrint::FakturaXmlPrint(wxWindow* parent, const FakturaTisk& data, const wxString& templatePath)
    : DocumentPrint(parent, u8("Faktura")) {
    m_ok = m_doc.readFromXml(templatePath, &m_error);
    if (m_ok) vyplnSablonu(m_doc, data);
    setDocument(&m_doc);
}

namespace {

ZavpohStrana strana(const wxString& nazev, const Adresa* adresa, const wxString& ic, const wxString& dic) {
    return {nazev, adresa ? adresniRadky(*adresa) : std::vector<wxString>(), ic, dic};
}

// The invoice as the common document layout shows it. The rounding line is not an item of
// the table: it prints as "Zaokrouhlení" above the total.
ZavpohDoklad doklad(const FakturaTisk& d, bool platce) {
    const Faktura& f = d.faktura;
    ZavpohDoklad z;
    z.platce = platce;
    z.cislo = f.cislo();
    z.nadpis = (platce ? u8("Faktura - daňový doklad č. ") : u8("Faktura č. ")) + f.cislo();
    z.popis = f.popis();
    z.firma = strana(d.firma.nazev(), d.maFirmaAdresu ? &d.firmaAdresa : nullptr, d.firma.ic(), d.firma.dic());
    if (d.maKontakt)
        z.protistrana = strana(d.kontakt.nazev(), d.maKontaktAdresu ? &d.kontaktAdresa : nullptr, d.kontakt.ic(),
                               d.kontakt.dic());
    z.vystaveni = f.vystaveni();
    z.duzp = f.duzp();
    z.splatnost = f.splatnost();
    z.vs = f.vs();
    z.ks = f.ks();
    z.ss = f.ss();
    z.uhrada = d.uhrada;
    if (d.maBanku && !d.pokladnou) {
        // The default account of a new company has the number 0, which says nothing.
        if (!d.banka.cislouctu().empty() && d.banka.cislouctu() != "0")
            z.ucet = d.banka.cislouctu() + "/" + d.banka.kodbanky();
        z.iban = d.banka.iban();
        z.bic = d.banka.bic();
    }
    z.mena = d.kodMena.empty() ? wxString("CZK") : d.kodMena;
    for (size_t i = 0; i < d.polozky.size(); ++i) {
        const FaPolozka& p = d.polozky[i];
        if (p.zaokrouhleni()) {
            z.maZaokrouhleni = true;
            z.zaokrouhleni += p.celkem();
            continue;
        }
        z.polozky.push_back({p.popis(), p.mj(), p.pocet(), p.cenamj(), i < d.sazbyPolozek.size() ? d.sazbyPolozek[i] : 0,
                             p.dph(), p.celkem()});
    }
    if (platce)
        for (const FaDphSazba& s : d.rekapitulace) z.souhrn.push_back({s.sazba, s.zaklad, s.dph});
    z.celkem = f.celkem();
    z.qrtext = d.qrtext;
    z.logo = d.firma.logo();
    z.razitko = d.firma.razitko();
    z.registrace = d.firma.registrace();
    return z;
}

}  // namespace

FakturaPlatcePrint::FakturaPlatcePrint(wxWindow* parent, const FakturaTisk& data) : DocumentPrint(parent, u8("Faktura")) {
    const ZavpohDoklad z = doklad(data, true);
    sazbaDokladu(m_doc, z, z.nadpis);
    setDocument(&m_doc);
}

FakturaNeplatcePrint::FakturaNeplatcePrint(wxWindow* parent, const FakturaTisk& data)
    : DocumentPrint(parent, u8("Faktura")) {
    const ZavpohDoklad z = doklad(data, false);
    sazbaDokladu(m_doc, z, z.nadpis);
    setDocument(&m_doc);
}
