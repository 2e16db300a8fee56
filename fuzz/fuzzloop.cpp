#include "fuzzloop.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <sstream>
#include <vector>

extern "C" void __sanitizer_set_death_callback(void (*callback)(void)) __attribute__((weak));

namespace {

using Input = std::string;

const size_t LARGEST_INPUT = 64 * 1024;

// Pieces that mean something to the CSV and rate-list readers.
// clang-format off
const char* const TOKENS[] = {
    ";", ",", "\t", "\"", "\"\"", "\n", "\r\n", "\r", "|", "#", "kurz", "Datum",
    "Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana", ";Měna;Částka v měně;Kurz",
    "\xEF\xBB\xBF", "\xFF\xFE", "\xC5\xBE", "\xC5", "\x81", "\x9E", "\0", "1e308", "0x10",
    "-", "99999999999", "999 999 999 999,99", "0,000001", "31.12.2024", "2024-02-29",
    "29.2.", "EUR", "USD", "CZK", "POKE", "BUE", "POK1", "BU1", "P001", "V002", "PP0003",
    "PP2147483647", "BV99999999999", "100", "1000"};
// clang-format on

// The input being run, for saving when the run dies.
const Input* g_current = nullptr;
std::string g_findings = ".";
std::string g_name = "fuzz";
std::set<std::string> g_outcomes;
bool g_newOutcome = false;

void saveCurrent() {
    if (!g_current) return;
    const std::string path = g_findings + "/crash-" + g_name + "-" + std::to_string(getpid()) + ".bin";
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0) return;
    const ssize_t written = write(fd, g_current->data(), g_current->size());
    close(fd);
    const char note[] = "\n*** the input is saved as ";
    if (written >= 0 && write(STDERR_FILENO, note, sizeof note - 1) >= 0) {
        if (write(STDERR_FILENO, path.c_str(), path.size()) >= 0 && write(STDERR_FILENO, "\n", 1) >= 0) {
        }
    }
}

void onSignal(int sig) {
    saveCurrent();
    signal(sig, SIG_DFL);
    raise(sig);
}

Input readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return Input(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::vector<Input> readCorpus(const std::string& dir) {
    std::vector<Input> corpus;
    DIR* d = opendir(dir.c_str());
    if (!d) return corpus;
    std::vector<std::string> names;
    while (dirent* e = readdir(d)) {
        if (e->d_name[0] != '.') names.push_back(e->d_name);
    }
    closedir(d);
    std::sort(names.begin(), names.end());
    for (const std::string& n : names) corpus.push_back(readFile(dir + "/" + n));
    return corpus;
}

int run(const Input& input) {
    g_current = &input;
    g_newOutcome = false;
    const int rc = LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.data()), input.size());
    g_current = nullptr;
    return rc;
}

class Mutator {
 public:
    explicit Mutator(unsigned seed) : m_rng(seed) {}
    size_t below(size_t n) { return n == 0 ? 0 : std::uniform_int_distribution<size_t>(0, n - 1)(m_rng); }

    Input random() {
        Input s(below(256), '\0');
        for (char& c : s) c = static_cast<char>(below(256));
        return s;
    }

    void mutate(Input& s, const std::vector<Input>& corpus) {
        const size_t steps = 1 + below(8);
        for (size_t i = 0; i < steps; ++i) step(s, corpus);
        if (s.size() > LARGEST_INPUT) s.resize(LARGEST_INPUT);
    }

 private:
    void step(Input& s, const std::vector<Input>& corpus) {
        const size_t pos = below(s.size() + 1);
        switch (below(9)) {
            case 0:
                if (!s.empty()) s[below(s.size())] ^= static_cast<char>(1u << below(8));
                break;
            case 1:
                if (!s.empty()) s[below(s.size())] = static_cast<char>(below(256));
                break;
            case 2:
                s.insert(pos, 1, static_cast<char>(below(256)));
                break;
            case 3:
                if (!s.empty()) s.erase(below(s.size()), 1 + below(16));
                break;
            case 4: {
                const char* t = TOKENS[below(std::size(TOKENS))];
                s.insert(pos, t, *t ? std::strlen(t) : 1);
                break;
            }
            case 5:
                if (!s.empty()) {  // a piece of the input over again, sometimes many times
                    const size_t from = below(s.size());
                    const Input piece = s.substr(from, 1 + below(64));
                    const size_t times = below(4) == 0 ? 1 + below(200) : 1;
                    for (size_t k = 0; k < times && s.size() < LARGEST_INPUT; ++k) s.insert(pos, piece);
                }
                break;
            case 6:
                if (!corpus.empty()) {  // the head of this input with the tail of another
                    const Input& other = corpus[below(corpus.size())];
                    s = s.substr(0, pos) + other.substr(below(other.size() + 1));
                }
                break;
            case 7:
                if (!s.empty()) {  // a line break moved somewhere else
                    const size_t nl = s.find('\n', below(s.size()));
                    if (nl != Input::npos) s.erase(nl, 1);
                    s.insert(below(s.size() + 1), 1, '\n');
                }
                break;
            default:
                if (!s.empty()) s.resize(below(s.size()));
                break;
        }
    }

    std::mt19937 m_rng;
};

int usage(const char* self) {
    std::fprintf(stderr,
                 "Usage: %s SECONDS CORPUS_DIR [FINDINGS_DIR [SEED]]\n"
                 "       %s --replay FILE...\n",
                 self, self);
    return 2;
}

}  // namespace

extern "C" void evidaFuzzOutcome(const char* outcome, size_t length) {
    if (g_outcomes.size() < 10000 && g_outcomes.emplace(outcome, length).second) g_newOutcome = true;
}

void fuzzFail(const std::string& what) {
    std::fprintf(stderr, "*** invariant broken: %s\n", what.c_str());
    saveCurrent();
    g_current = nullptr;
    std::abort();
}

int main(int argc, char** argv) {
    if (argc < 2) return usage(argv[0]);
    const std::string self = argv[0];
    g_name = self.substr(self.find_last_of('/') + 1);
    LLVMFuzzerInitialize(&argc, &argv);
    if (std::strcmp(argv[1], "--replay") == 0) {
        for (int i = 2; i < argc; ++i) {
            const Input input = readFile(argv[i]);
            run(input);
            std::printf("%s: ran\n", argv[i]);
        }
        return 0;
    }
    if (argc < 3) return usage(argv[0]);
    const double seconds = std::atof(argv[1]);
    std::vector<Input> corpus = readCorpus(argv[2]);
    if (argc > 3) g_findings = argv[3];
    mkdir(g_findings.c_str(), 0755);
    const unsigned seed = argc > 4 ? static_cast<unsigned>(std::strtoul(argv[4], nullptr, 10))
                                   : static_cast<unsigned>(std::random_device{}());
    if (__sanitizer_set_death_callback) __sanitizer_set_death_callback(saveCurrent);
    for (int sig : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL}) signal(sig, onSignal);

    std::printf("%s: %zu corpus inputs, seed %u, %.0f s\n", g_name.c_str(), corpus.size(), seed, seconds);
    for (const Input& input : corpus) run(input);
    const size_t seeded = corpus.size();
    Mutator mutator(seed);
    const auto start = std::chrono::steady_clock::now();
    const auto deadline = start + std::chrono::duration<double>(seconds);
    size_t runs = 0;
    while (std::chrono::steady_clock::now() < deadline) {
        Input input =
            corpus.empty() || mutator.below(10) == 0 ? mutator.random() : corpus[mutator.below(corpus.size())];
        mutator.mutate(input, corpus);
        run(input);
        ++runs;
        if (g_newOutcome && corpus.size() < 5000) corpus.push_back(std::move(input));
    }
    std::printf("%s: %zu runs, %zu outcomes, corpus %zu (+%zu), no fault\n", g_name.c_str(), runs, g_outcomes.size(),
                corpus.size(), corpus.size() - seeded);
    return 0;
}
