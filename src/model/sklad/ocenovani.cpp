#include "ocenovani.h"

#include <algorithm>

namespace ocenovani {

void Prubeh::pridat(const Pohyb& pohyb) {
    if (pohyb.prijemka) {
        if (m_fifo && pohyb.pocet > 0) m_prijmy.push_back({pohyb.pocet, pohyb.cenamj});
        m_pocet += pohyb.pocet;
        m_celkem += pohyb.cenamj * pohyb.pocet;
        return;
    }
    if (!m_fifo) {
        if (m_pocet != 0) m_celkem -= m_celkem / m_pocet * pohyb.pocet;
        m_pocet -= pohyb.pocet;
        return;
    }
    // FIFO: the issue takes from the oldest receipts still open. What they cannot cover is
    // dropped, so the stock never goes below zero and an issue before any receipt takes nothing.
    double zbyva = pohyb.pocet;
    while (zbyva > 0 && !m_prijmy.empty()) {
        Zbytek& prvni = m_prijmy.front();
        const double vzato = std::min(zbyva, prvni.pocet);
        prvni.pocet -= vzato;
        zbyva -= vzato;
        m_pocet -= vzato;
        m_celkem -= vzato * prvni.cenamj;
        if (prvni.pocet <= 0) m_prijmy.pop_front();
    }
    // Sums kept by subtraction drift; an empty queue means exactly nothing in stock.
    if (m_prijmy.empty()) m_pocet = m_celkem = 0;
}

Stav Prubeh::stav() const {
    if (m_fifo) return {m_pocet, m_celkem};
    // The average method reports the value as unit cost × quantity, nothing when empty.
    if (m_pocet == 0) return {0, 0};
    return {m_pocet, m_celkem / m_pocet * m_pocet};
}

double Prubeh::hodnotaVydeje(double pocet) const {
    if (!m_fifo) return m_pocet != 0 ? m_celkem / m_pocet * pocet : 0;
    double hodnota = 0;
    for (auto it = m_prijmy.begin(); it != m_prijmy.end() && pocet > 0; ++it) {
        const double vzato = std::min(pocet, it->pocet);
        hodnota += vzato * it->cenamj;
        pocet -= vzato;
    }
    return hodnota;
}

Stav stav(int metoda, const std::vector<Pohyb>& pohyby) {
    Prubeh prubeh(metoda);
    for (const Pohyb& p : pohyby) prubeh.pridat(p);
    return prubeh.stav();
}

}  // namespace ocenovani
