// One trip of the vehicle log: the vehicle and driver, start and end (day and time of day),
// the odometer at both ends, the route and the purpose. A new trip starts from the odometer
// state the vehicle's last trip ended with. Overlapping trips and an odometer going backwards
// are warned about and saved only when the user says so.
#pragma once

#include <vector>

#include "FormDialog.h"

class lxDateCtrl;

class JizdaDialog : public FormDialog {
 public:
    // `id` of the edited trip, -1 for a new one; a new one may repeat the trip `vzor`: the same
    // vehicle, driver, route, purpose, times of day and distance, on the application's date and
    // from the vehicle's last odometer state.
    JizdaDialog(wxWindow* parent, int id = -1, int vzor = -1);
    bool save() override;
    int jizdaId() const { return m_id; }

 private:
    void onVozidlo();
    int vybrane(const wxChoice* choice, const std::vector<int>& ids) const;

    int m_id;
    bool m_kmZadane = false;  // the start odometer was typed, so a change of vehicle keeps it
    wxChoice* m_vozidlo = nullptr;
    wxChoice* m_ridic = nullptr;
    lxDateCtrl* m_startDatum = nullptr;
    wxTextCtrl* m_startCas = nullptr;
    lxDateCtrl* m_endDatum = nullptr;
    wxTextCtrl* m_endCas = nullptr;
    wxTextCtrl* m_startKm = nullptr;
    wxTextCtrl* m_endKm = nullptr;
    wxTextCtrl* m_cesta = nullptr;
    wxTextCtrl* m_ucel = nullptr;
    std::vector<int> m_vozidlaIds;
    std::vector<int> m_ridiciIds;
};
