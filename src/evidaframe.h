// The main window. For now it opens the current company (or creates the first one) and
// shows the model's messages; menus, navigation and the book of pages come later.
#pragma once

#include <wx/frame.h>

#include <memory>

class DbModel;

class evidaFrame : public wxFrame {
   public:
    explicit evidaFrame(const wxString& title);
    ~evidaFrame() override;

    bool loadDatabase();

   private:
    void onModelUpdated(wxCommandEvent& event);
    void onModelMsg(wxCommandEvent& event);
    void updateStatusBar();

    std::unique_ptr<DbModel> m_model;
};
