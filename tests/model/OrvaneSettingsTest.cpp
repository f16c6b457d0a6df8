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
}

TEST_F(OrvaneSettingsTest, NoDisplayRemovesTheKey) {
  OrvaneSettings::setSelectedDisplayID("an id");
  OrvaneSettings::setSelectedDisplayID(std::nullopt);
  EXPECT_TRUE(stored().empty());
}

TEST_F(OrvaneSettingsTest, ValuesOfTheWrongTypeReadAsTheDefaults) {
  for (const PropertyValue& wrong : {PropertyValue(1.0), PropertyValue("true")}) {
    machine.userDefaults.set("isOrvaneEnabled", wrong);
    machine.userDefaults.set("hidesDockOnAllDisplays", wrong);
    EXPECT_FALSE(OrvaneSettings::isOrvaneEnabled());
    EXPECT_FALSE(OrvaneSettings::hidesDockOnAllDisplays());
  }
  for (const PropertyValue& wrong : {PropertyValue(1.0), PropertyValue(true)}) {
    machine.userDefaults.set("selectedDisplayID", wrong);
    machine.userDefaults.set("temporaryUnlockModifier", wrong);
    machine.userDefaults.set("appLanguage", wrong);
    EXPECT_EQ(OrvaneSettings::selectedDisplayID(), std::nullopt);
    EXPECT_EQ(OrvaneSettings::temporaryUnlockModifier(), OrvaneModifier::option);
    EXPECT_EQ(OrvaneSettings::appLanguage(), OrvaneLanguage::system);
  }
}

TEST_F(OrvaneSettingsTest, UnknownTextsReadAsTheDefaults) {
  machine.userDefaults.set("temporaryUnlockModifier", "meta");
  machine.userDefaults.set("appLanguage", "latin");
  machine.userDefaults.set("selectedDisplayID", "");
  EXPECT_EQ(OrvaneSettings::temporaryUnlockModifier(), OrvaneModifier::option);
  EXPECT_EQ(OrvaneSettings::appLanguage(), OrvaneLanguage::system);
  EXPECT_EQ(OrvaneSettings::selectedDisplayID(), std::nullopt);
}

}  // namespace
}  // namespace orvane
