// The choices the stock dialogs share: the valuation method, the warehouse.
#pragma once

#include <wx/choice.h>

#include <vector>

// "Oceňování zásob": "FIFO", "Vážený aritmetický průměr", in the order of their codes.
wxChoice* ocenovaniChoice(wxWindow* parent);

// The warehouses by name, remembering their ids.
class SkladChoice : public wxChoice {
 public:
    explicit SkladChoice(wxWindow* parent);
    void select(int skladid);
    int skladId() const;  // -1 for none

 private:
    std::vector<int> m_ids;
};
