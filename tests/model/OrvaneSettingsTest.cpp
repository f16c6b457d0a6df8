// The settings that persist across launches: their keys, formats and defaults.
#include <string>

#include <gtest/gtest.h>

#include "Orvane/model/OrvaneSettings.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

using desk::PropertyValue;

class OrvaneSettingsTest : public desk::MachineFixture {
 protected:
  [[nodiscard]] const desk::UserDefaultsStore::Values& stored() const {
    return machine.userDefaults.values();
  }
};

TEST_F(OrvaneSettingsTest, NothingStoredReadsAsTheDefaults) {
  EXPECT_EQ(OrvaneSettings::selectedDisplayID(), std::nullopt);
  EXPECT_FALSE(OrvaneSettings::isOrvaneEnabled());
  EXPECT_FALSE(OrvaneSettings::hidesDockOnAllDisplays());
  EXPECT_EQ(OrvaneSettings::temporaryUnlockModifier(), OrvaneModifier::option);
  EXPECT_EQ(OrvaneSettings::appLanguage(), OrvaneLanguage::system);
  EXPECT_TRUE(stored().empty()) << "reading writes nothing";
}

TEST_F(OrvaneSettingsTest, EachSettingHasItsKeyAndFormat) {
  OrvaneSettings::setSelectedDisplayID("an id");
  OrvaneSettings::setOrvaneEnabled(true);
  OrvaneSettings::setHidesDockOnAllDisplays(true);
  OrvaneSettings::setTemporaryUnlockModifier(OrvaneModifier::command);
  OrvaneSettings::setAppLanguage(OrvaneLanguage::chinese);
  EXPECT_EQ(stored(), (desk::UserDefaultsStore::Values{{"selectedDisplayID", "an id"},
                                                       {"isOrvaneEnabled", true},
                                                       {"hidesDockOnAllDisplays", true},
                                                       {"temporaryUnlockModifier", "command"},
                                                       {"appLanguage", "chinese"}}));
  EXPECT_EQ(OrvaneSettings::selectedDisplayID(), "an id");
  EXPECT_TRUE(OrvaneSettings::isOrvaneEnabled());
  EXPECT_TRUE(OrvaneSettings::hidesDockOnAllDisplays());
  EXPECT_EQ(OrvaneSettings::temporaryUnlockModifier(), OrvaneModifier::command);
  EXPECT_EQ(OrvaneSettings::appLanguage(), OrvaneLanguage::chinese);
  OrvaneSettings::setSelectedDisplayID(std::nullopt);
  EXPECT_FALSE(stored().contains("selectedDisplayID")) << "no display removes the key";
}

TEST_F(OrvaneSettingsTest, ValuesOfTheWrongTypeReadAsTheDefaults) {
  for (const PropertyValue& wrong : {PropertyValue(1.0), PropertyValue("true")}) {
    store("isOrvaneEnabled", wrong);
    store("hidesDockOnAllDisplays", wrong);
    EXPECT_FALSE(OrvaneSettings::isOrvaneEnabled());
    EXPECT_FALSE(OrvaneSettings::hidesDockOnAllDisplays());
  }
  for (const PropertyValue& wrong : {PropertyValue(1.0), PropertyValue(true)}) {
    store("selectedDisplayID", wrong);
    store("temporaryUnlockModifier", wrong);
    store("appLanguage", wrong);
    EXPECT_EQ(OrvaneSettings::selectedDisplayID(), std::nullopt);
    EXPECT_EQ(OrvaneSettings::temporaryUnlockModifier(), OrvaneModifier::option);
    EXPECT_EQ(OrvaneSettings::appLanguage(), OrvaneLanguage::system);
  }
  store("selectedDisplayID", "");
  EXPECT_EQ(OrvaneSettings::selectedDisplayID(), std::nullopt) << "an empty text names no display";
}

}  // namespace
}  // namespace orvane
