#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "rules/Conversions.h"

TEST(Conversions, StrictRefuseCeQuiNEstPasUnNombreEntier) {
    EXPECT_EQ(Convertir_Strict_Reel(" 12.5 "), 12.5);
    EXPECT_EQ(Convertir_Strict_Reel("1.5E-2"), 0.015);
    EXPECT_EQ(Convertir_Strict_Reel("1e-400"), 0.0);   // below the smallest double: zero
    for (const char* refus : {"", "   ", "12abc", "0x10", "inf", "nan", "1,5", "1e999", "-", ".", "1e", "1 2"})
        EXPECT_FALSE(Convertir_Strict_Reel(refus)) << '"' << refus << '"';

    EXPECT_EQ(Convertir_Strict_Entier(" -7 "), -7);
    EXPECT_EQ(Convertir_Strict_Entier("-9223372036854775808"), std::numeric_limits<int64_t>::min());
    for (const char* refus : {"", "abc", "4.0", "1e3", "+-3", "9223372036854775808", "12abc"})
        EXPECT_FALSE(Convertir_Strict_Entier(refus)) << '"' << refus << '"';

    EXPECT_EQ(Convertir_Strict_Booleen(" FALSE "), false);
    EXPECT_EQ(Convertir_Strict_Booleen("-2.5"), true);
    for (const char* refus : {"", "Vrai", "1x"}) EXPECT_FALSE(Convertir_Strict_Booleen(refus)) << '"' << refus << '"';
}

TEST(Conversions, SoupleLitLePlusLongNombreEnTete) {
    EXPECT_EQ(Convertir_Souple("12abc"), 12.0);
    EXPECT_EQ(Convertir_Souple(""), 0.0);
    EXPECT_EQ(Convertir_Souple("-3.5e"), -3.5);
    EXPECT_EQ(Convertir_Souple("2,5"), 2.0);   // the decimal mark is the point only
    EXPECT_EQ(Convertir_Souple("abc12"), 0.0);
    EXPECT_EQ(Souple_En<int16_t>("70000"), 32767);
    EXPECT_EQ(Souple_En<int32_t>("-4.5 pièces"), -4);
    EXPECT_TRUE(Souple_Booleen("0.1"));
    EXPECT_FALSE(Souple_Booleen("oui"));
}

TEST(Conversions, ArrondiAuPairEtBorneAuType) {
    EXPECT_EQ(Arrondir(0.5), 0.0);
    EXPECT_EQ(Arrondir(1.5), 2.0);
    EXPECT_EQ(Arrondir(2.5), 2.0);
    EXPECT_EQ(Arrondir(-0.5), 0.0);
    EXPECT_EQ(Arrondir(2.5000001), 3.0);
    EXPECT_EQ(Int(-0.5), -1.0);

    EXPECT_EQ(Arrondir_En<int16_t>(40000.0), 32767);
    EXPECT_EQ(Arrondir_En<int16_t>(-32768.5), -32768);
    EXPECT_EQ(Arrondir_En<int16_t>(std::nan("")), 0);
    EXPECT_EQ(Arrondir_En<int32_t>(-3e9), std::numeric_limits<int32_t>::min());
    EXPECT_EQ(Arrondir_En<int64_t>(1e19), std::numeric_limits<int64_t>::max());
}

TEST(Conversions, TexteNombreEtNumerotation) {
    EXPECT_EQ(Texte_Nombre(100000.0), "100000");
    EXPECT_EQ(Texte_Nombre(-2.75), "-2.75");
    for (const double x : {1.0 / 3.0, 1e300, 0.1f + 0.0, -5e-324})
        EXPECT_EQ(Convertir_Strict_Reel(Texte_Nombre(x)), x) << Texte_Nombre(x);

    EXPECT_EQ(Section_Numerotee("Armée_", 12), "Armée_12");
    EXPECT_EQ(Cle_Numerotee("PrixRessources", 3), "PrixRessources(3)");
}
