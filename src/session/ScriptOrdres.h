// A script of orders for the simulator: the balancing tester's hand-written game. One order
// a line, "<tour> <perso> <ordre> [arguments]", given to a character just before the tick of
// that number runs (ticks count from 0). ";" or "#" starts a comment; blank lines are
// skipped; ticks never go down. Numbers of characters, types, lines and slots count from 0,
// as the simulator prints them.
//
//   batir TYPE DX DY   builds a house of that type at its castle + (DX, DY) metres, if it
//                      carries the price, and goes home to build it
//   recolter R         harvests the nearest deposit of resource R (none: nothing happens)
//   rentrer            goes home (to work, build or rest)
//   chateau            goes into its own castle
//   aller X Y          walks to a point
//   arreter            stops
//   fabriquer N        starts line N of its house's objects, if it can pay for it
//   ramasser N         takes an object of line N from its house
//   acheter M N        buys an object of line N of house M
//   vendre SLOT        sells an inventory object to the castle
//   equiper SLOT       wears or uses an inventory object
//   ranger SLOT        puts a worn object back in the inventory
//   deposer SLOT       gives an inventory object to its house
//   manger R           eats one unit of resource R
//
// The file is read once, before the game; walking through the orders allocates nothing (an
// order itself may, as building a house does).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class Verbe : uint8_t {
    Batir,
    Recolter,
    Rentrer,
    Chateau,
    Aller,
    Arreter,
    Fabriquer,
    Ramasser,
    Acheter,
    Vendre,
    Equiper,
    Ranger,
    Deposer,
    Manger,
};

struct OrdreScript {
    int64_t Tour = 0;
    int32_t Perso = 0;
    Verbe Ordre = Verbe::Arreter;
    std::array<int32_t, 3> Arguments{};
    int32_t Ligne = 0;   // line of the file, from 1, for the messages
};

class ScriptOrdres {
public:
    // Reads a script file. On a fault the result is empty and erreur holds a French message
    // that names the file and the line.
    static std::optional<ScriptOrdres> Lire(const std::filesystem::path& chemin, std::string& erreur);
    // The same from a text already in memory; nom is the file name the messages give.
    static std::optional<ScriptOrdres> Lire_Texte(std::string_view texte, std::string_view nom,
                                                  std::string& erreur);

    // Checks every number against the rules and the world now in memory (characters, house
    // slots, building types, resources, object lines, slots). Empty when all is in range,
    // else the message of the first fault.
    std::optional<std::string> Verifier() const;

    // Gives, in file order, every order due by tour that has not been given yet.
    void Appliquer(int64_t tour);
    // Orders given so far.
    std::size_t Donnes() const { return prochain_; }
    const std::vector<OrdreScript>& Ordres() const { return ordres_; }

private:
    std::string nom_;
    std::vector<OrdreScript> ordres_;
    std::size_t prochain_ = 0;

    std::string Situer(const OrdreScript& o) const;
};

// Gives one order to its character, as the script would.
void Donner_Ordre(const OrdreScript& o);
