#include "Mots.h"

#include <cstdint>

namespace {

// Latin-1 letters of the second byte after 0xC3, folded to ASCII.
char Replier_Latin1(uint8_t o) {
    static constexpr const char* table =
        "aaaaaaaceeeeiiii"   // C0-CF
        "dnooooo*ouuuuyps"   // D0-DF
        "aaaaaaaceeeeiiii"   // E0-EF
        "dnooooo/ouuuuypy";  // F0-FF
    return o >= 0x80 ? table[(o + 0x40) & 0x3F] : '?';
}

}  // namespace

std::string Plier(std::string_view texte) {
    std::string s;
    for (size_t i = 0; i < texte.size(); ++i) {
        const auto o = static_cast<uint8_t>(texte[i]);
        if (o < 0x80) {
            s += (o >= 'A' && o <= 'Z') ? static_cast<char>(o - 'A' + 'a') : static_cast<char>(o);
        } else if (o == 0xC3 && i + 1 < texte.size()) {
            s += Replier_Latin1(static_cast<uint8_t>(texte[++i]));
        } else if (o == 0xC5 && i + 1 < texte.size()) {
            const auto suite = static_cast<uint8_t>(texte[++i]);
            s += (suite == 0x92 || suite == 0x93) ? "oe" : "?";
        } else if (o >= 0xC0) {
            s += '?';   // another letter: one mark for the whole sequence
            while (i + 1 < texte.size() && (static_cast<uint8_t>(texte[i + 1]) & 0xC0) == 0x80) ++i;
        }
    }
    return s;
}

bool Contient(const std::string& plie, const std::vector<std::string_view>& mots) {
    for (std::string_view m : mots)
        if (plie.find(m) != std::string::npos) return true;
    return false;
}

bool Contient_Mot(const std::string& plie, const std::vector<std::string_view>& mots) {
    for (std::string_view m : mots)
        for (size_t p = plie.find(m); p != std::string::npos; p = plie.find(m, p + 1)) {
            const char avant = p == 0 ? ' ' : plie[p - 1];
            if (!(avant >= 'a' && avant <= 'z') && !(avant >= '0' && avant <= '9')) return true;
        }
    return false;
}
