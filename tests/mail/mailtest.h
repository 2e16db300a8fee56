// Fixture of the e-mail tests: a private folder for files and received messages.
#pragma once

#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/filename.h>

#include <string>

#include "../smtpserver.h"

#ifndef EVIDA_TEST_U8
#define EVIDA_TEST_U8
inline wxString u8(const char* text) { return wxString::FromUTF8(text); }
#endif

class MailTest : public ::testing::Test {
 protected:
    void SetUp() override {
        m_dir = wxFileName::CreateTempFileName("evida-mail");
        wxRemoveFile(m_dir);
        ASSERT_TRUE(wxFileName::Mkdir(m_dir, 0700));
    }
    void TearDown() override { wxFileName::Rmdir(m_dir, wxPATH_RMDIR_RECURSIVE); }

    // `size` bytes like a PDF's: the header, then every byte value in a scrambled order.
    static std::string pdfBytes(size_t size) {
        std::string bytes = std::string("%PDF-1.5\n").substr(0, size);
        unsigned state = 12345;
        while (bytes.size() < size) {
            state = state * 1103515245u + 12345u;
            bytes += static_cast<char>(state >> 16);
        }
        return bytes;
    }
    wxString writeFile(const wxString& name, const std::string& bytes) {
        const wxString path = m_dir + "/" + name;
        wxFFile f(path, "wb");
        EXPECT_TRUE(f.IsOpened() && f.Write(bytes.data(), bytes.size()) == bytes.size());
        return path;
    }
    wxString freshDir(const char* name) {
        const wxString path = m_dir + "/" + name;
        if (wxFileName::DirExists(path)) wxFileName::Rmdir(path, wxPATH_RMDIR_RECURSIVE);
        wxFileName::Mkdir(path, 0700);
        return path;
    }
    static std::string fileBytes(const wxString& path) {
        wxFFile f(path, "rb");
        if (!f.IsOpened()) return "<missing>";
        std::string bytes(static_cast<size_t>(f.Length()), '\0');
        if (!bytes.empty()) f.Read(&bytes[0], bytes.size());
        return bytes;
    }

    wxString m_dir;
};
