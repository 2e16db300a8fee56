// "Odpisové skupiny": the depreciation groups with their years and rates. A group that an
// asset uses is not deleted.
#pragma once

#include "CiselnikDialog.h"
#include "OdpiskupinaDialog.h"

class OdpiskupinyDialog : public FormCiselnikDialog<OdpiskupinaDialog> {
 public:
    explicit OdpiskupinyDialog(wxWindow* parent, bool chooser = false);
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;
};
