#include <gtest/gtest.h>

#include "support/LocaleEnvironment.h"
#include "OrvI18N.h"

namespace {

struct Mapping {
    const char* locale;
    uint32_t id;
};

class LanguageIdTest : public testing::TestWithParam<Mapping> {
protected:
    LocaleEnvironment environment;
};

const Mapping kMappings[] = {
    {"en_US.UTF-8", 1033},
    {"en_GB.UTF-8", 2057},
    {"en_AU", 3081},
    {"en_CA", 4105},
    {"en_IE", 6153},
    {"en_IN", 16393},
    {"en", 1033},
    {"en_XX", 1033},
    {"de_DE.UTF-8", 1031},
    {"de_AT.UTF-8@euro", 3079},
    {"de_CH", 2055},
    {"de_LU", 4103},
    {"de", 1031},
    {"de_BE", 1031},
    {"fr_FR@euro", 1036},
    {"fr_BE", 2060},
    {"fr_CA.UTF-8", 3084},
    {"fr_CH", 4108},
    {"fr_SN", 1036},
    {"ja_JP.eucJP", 1041},
    {"ja", 1041},
    {"ko_KR.UTF-8", 1042},
    {"zh_CN.GB18030", 2052},
    {"zh_TW.Big5", 1028},
    {"zh_HK", 3076},
    {"zh_SG", 4100},
    {"zh", 2052},
    {"es_ES.UTF-8", 3082},
    {"es_MX", 2058},
    {"es_AR", 11274},
    {"es_PE", 3082},
    {"it_IT", 1040},
    {"it_CH", 2064},
    {"pt_BR", 1046},
    {"pt_PT", 2070},
    {"pt", 1046},
    {"nl_NL", 1043},
    {"nl_BE", 2067},
    {"sv_SE", 1053},
    {"sv_FI", 2077},
    {"nb_NO", 1044},
    {"no_NO", 1044},
    {"nn_NO", 2068},
    {"da_DK", 1030},
    {"fi_FI", 1035},
    {"pl_PL", 1045},
    {"cs_CZ", 1029},
    {"hu_HU", 1038},
    {"ru_RU.KOI8-R", 1049},
    {"uk_UA", 1058},
    {"tr_TR", 1055},
    {"el_GR", 1032},
    {"he_IL", 1037},
    {"ar_EG", 3073},
    {"ar_MA", 1025},
    {"th_TH", 1054},
    {"ko", 1042},
    {"C", 1033},
    {"POSIX", 1033},
    {"C.UTF-8", 1033},
    {"xx_YY", 1033},
    {"tlh", 1033},
    {"DE_at", 3079},
    {"de-AT", 3079},
    {"pt-br", 1046},
};

}  // namespace

TEST_P(LanguageIdTest, LocaleNameGivesItsLanguageId) {
    environment.UseLocale(GetParam().locale);
    EXPECT_EQ(OrvI18N_GetLanguage(), GetParam().id) << GetParam().locale;
}

INSTANTIATE_TEST_SUITE_P(Locales, LanguageIdTest, testing::ValuesIn(kMappings));

TEST(LanguageSourceTest, NoLocaleAtAllIsUsEnglish) {
    LocaleEnvironment environment;
    EXPECT_EQ(OrvI18N_GetLanguage(), 1033u);
}

TEST(LanguageSourceTest, LanguageListComesFirstAndOnlyItsFirstEntryCounts) {
    LocaleEnvironment environment;
    environment.Set("LANG", "fr_FR.UTF-8");
    environment.Set("LC_MESSAGES", "ja_JP.UTF-8");
    environment.Set("LC_ALL", "ko_KR.UTF-8");
    environment.Set("LANGUAGE", "de_AT:fr:en");
    EXPECT_EQ(OrvI18N_GetLanguage(), 3079u);
    environment.Set("LANGUAGE", "de");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1031u);
}

TEST(LanguageSourceTest, EmptyVariablesAreSkippedInOrder) {
    LocaleEnvironment environment;
    environment.Set("LANG", "fr_FR.UTF-8");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1036u);
    environment.Set("LC_MESSAGES", "ja_JP.UTF-8");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1041u);
    environment.Set("LC_ALL", "ko_KR.UTF-8");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1042u);
    environment.Set("LANGUAGE", "");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1042u);
    environment.Set("LANGUAGE", ":de");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1042u);
    environment.Set("LC_ALL", "");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1041u);
}

TEST(LanguageSourceTest, CLocaleInLanguageListIsUsEnglish) {
    LocaleEnvironment environment;
    environment.Set("LANG", "de_DE.UTF-8");
    environment.Set("LANGUAGE", "C");
    EXPECT_EQ(OrvI18N_GetLanguage(), 1033u);
}
