// The picker of the main economic activity ("Hlavní ekonomická činnost") from the code list of
// activities: its NACE code and name, searched as one types.
#pragma once

#include <vector>

#include "HledaciDialog.h"
#include "dph/ciselniky.h"

class OkecDialog : public HledaciDialog {
 public:
    // Offers `list` (the activities valid today when not given) with `c_okec` selected.
    OkecDialog(wxWindow* parent, int c_okec = 0);
    OkecDialog(wxWindow* parent, int c_okec, const std::vector<lxutils::Okec>& list);

    // The code of the chosen activity, 0 when none was chosen.
    int chosenOkec() const;
    // The name of the chosen activity.
    wxString chosenNazev() const;

 private:
    std::vector<lxutils::Okec> m_okec;
};
