#include <gtest/gtest.h>

#include "rules/Horloge.h"

TEST(Horloge, TourneAMinuitPiloteeOuDepuisUneSource) {
    Piloter_Horloge(86399.5f);
    Avancer_Horloge(1.0f);
    EXPECT_EQ(Horloge(), 0.5f);
    Avancer_Horloge(-1.0f);
    EXPECT_EQ(Horloge(), 86399.5f);
    Piloter_Horloge(90000.0f);
    EXPECT_EQ(Horloge(), 3600.0f);

    Definir_Source_Horloge([] { return 86399.999f; });   // rounds to 86400 in a float
    EXPECT_EQ(Horloge(), 0.0f);
    Definir_Source_Horloge([] { return 1234.5f; });
    EXPECT_EQ(Horloge(), 1234.5f);
    Avancer_Horloge(0.5f);   // from the source's time, then driven
    Definir_Source_Horloge(nullptr);
    EXPECT_EQ(Horloge(), 1235.0f);
    Piloter_Horloge(0);
}
