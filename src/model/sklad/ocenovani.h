// Valuation of a stock item from its movements: the quantity and the value left after a run
// of receipts and issues, by FIFO or by the weighted average. Movements come in date order;
// every step is constant time (FIFO keeps its open receipts in a queue), so a whole history
// costs one pass.
#pragma once

#include <cstddef>
#include <deque>
#include <vector>

namespace ocenovani {

// The valuation methods of an item (zasoba.ocenovani), in the order the choice lists them.
enum Metoda { FIFO = 0, PRUMER = 1 };

struct Pohyb {
    double pocet = 0;
    double cenamj = 0;
    bool prijemka = true;
};

struct Stav {
    double pocet = 0;
    double celkem = 0;
};

// The running state of one item, fed movement by movement.
class Prubeh {
   public:
    explicit Prubeh(int metoda) : m_fifo(metoda == FIFO) {}

    void pridat(const Pohyb& pohyb);
    Stav stav() const;
    // What an issue of `pocet` would take off the value now, without taking it.
    double hodnotaVydeje(double pocet) const;

   private:
    struct Zbytek {
        double pocet;
        double cenamj;
    };
    bool m_fifo;
    // FIFO: receipts with what is left of them, oldest first; emptied ones are popped.
    std::deque<Zbytek> m_prijmy;
    // Both methods: running quantity and value (FIFO keeps them as the sums over m_prijmy).
    double m_pocet = 0;
    double m_celkem = 0;
};

// The state after all `pohyby` (in date order) by `metoda`.
Stav stav(int metoda, const std::vector<Pohyb>& pohyby);

}  // namespace ocenovani
