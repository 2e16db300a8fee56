// Pairing of bank movements with the open documents they settle. The open documents are read
// once and indexed by variable symbol and by open amount, so each movement costs a few hash
// look-ups whatever the number of documents. Every proposal says why it was made; cases that
// could go two ways are not decided here but left to the user with the candidates listed.
#pragma once

#include <unordered_map>
#include <vector>

#include "dbmodel.h"
#include "fakturace/uhradaform.h"
#include "pohyb.h"

namespace vypis {

// An invoice, receivable or liability that is not fully paid.
struct OtevrenyDoklad {
    DruhDokladu druh = DruhDokladu::FAKTURA_VYDANA;
    int id = -1;
    wxString cislo;
    wxString vs;
    double zbyva = 0;  // open amount in the document's currency
    int menaid = 1;
    int protistranaid = 0;
    wxString protistrana;

    bool prijem() const { return druh == DruhDokladu::FAKTURA_VYDANA || druh == DruhDokladu::POHLEDAVKA; }
    bool faktura() const { return druh == DruhDokladu::FAKTURA_VYDANA || druh == DruhDokladu::FAKTURA_PRIJATA; }
};

// The open documents of the current and earlier years: one query per table.
std::vector<OtevrenyDoklad> otevreneDoklady(DbModel& model);

enum class DruhNavrhu {
    ZADNY,          // nothing fits
    PRESNY,         // VS and amount agree
    CASTECNY,       // VS agrees, less than the open amount
    PREPLATEK,      // VS agrees, more than the open amount
    UCET,           // amount agrees and the counter-account paid this counterparty before
    NEJEDNOZNACNY,  // more than one reading; the user chooses
    STORNO,         // the bank reverses a movement; booked by hand
};

struct Navrh {
    DruhNavrhu druh = DruhNavrhu::ZADNY;
    int doklad = -1;              // index into Parovani::doklady(), -1 when none is proposed
    std::vector<int> kandidati;   // documents the user may want to look at
    wxString duvod;               // the reason shown beside the proposal

    // Proposals good enough to be ticked for writing without the user changing anything.
    bool jisty() const { return druh == DruhNavrhu::PRESNY || druh == DruhNavrhu::UCET; }
};

// Counter-accounts (normalised) and the contacts they paid or were paid by before.
using ZnameUcty = std::unordered_map<wxString, std::vector<int>>;

class Parovani {
   public:
    // Only documents in the account's currency (`menaid`) take part: a foreign-currency account
    // pairs in its own currency.
    Parovani(std::vector<OtevrenyDoklad> doklady, ZnameUcty ucty, int menaid);

    Navrh navrh(const Pohyb& pohyb) const;
    // Counts a movement written against a document, so that the next movement of the same
    // statement sees what is still open.
    void zapocitat(int doklad, double castka);

    const std::vector<OtevrenyDoklad>& doklady() const { return m_doklady; }
    // The documents a movement of that direction may pay, for choosing another one by hand.
    std::vector<int> dokladySmeru(bool prijem) const;

   private:
    std::vector<int> podleCastky(long long centy, bool prijem) const;

    std::vector<OtevrenyDoklad> m_doklady;
    ZnameUcty m_ucty;
    std::unordered_map<wxString, std::vector<int>> m_podleVs;
    std::unordered_map<long long, std::vector<int>> m_podleCastky;
};

// Hellers of an amount, the key under which amounts are compared.
long long centy(double castka);

}  // namespace vypis
