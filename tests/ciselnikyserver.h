// A stand-in for the code-list service on loopback: a request "...?C=<name>&..." is answered
// with the file "<name>.xml" of the served directory (404 when there is none), and every
// request, path and query, is appended as a line to "requests.log" there, in arrival order.
#pragma once

#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/string.h>
#include <wx/tokenzr.h>

#include "httpserver.h"

inline const char* const CISELNIKY_SERVER_PY = R"(import http.server, os, sys, urllib.parse
root = sys.argv[1]
class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        with open(os.path.join(root, 'requests.log'), 'a') as log:
            log.write(self.path + '\n')
        query = urllib.parse.parse_qs(urllib.parse.urlsplit(self.path).query)
        name = os.path.join(root, query.get('C', [''])[0] + '.xml')
        if not query.get('C') or not os.path.isfile(name):
            self.send_error(404)
            return
        data = open(name, 'rb').read()
        self.send_response(200)
        self.send_header('Content-Type', 'text/xml; charset=UTF-8')
        self.send_header('Content-Length', str(len(data)))
        self.end_headers()
        self.wfile.write(data)
    def log_message(self, *args):
        pass
server = http.server.HTTPServer(('127.0.0.1', 0), Handler)
print('Serving HTTP on 127.0.0.1 port %d' % server.server_port, flush=True)
server.serve_forever()
)";

// The requests the server received, one a line.
inline wxArrayString ciselnikyRequests(const wxString& directory) {
    wxString text;
    const wxString path = wxFileName(directory, "requests.log").GetFullPath();
    if (!wxFileName::FileExists(path)) return wxArrayString();
    wxFFile log(path, "r");
    if (log.IsOpened()) log.ReadAll(&text);
    return wxStringTokenize(text, "\n", wxTOKEN_STRTOK);
}
