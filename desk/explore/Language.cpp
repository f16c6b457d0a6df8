// English text has no Chinese characters, and Chinese text no Latin words but a few names.
#include "desk/explore/Language.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <vector>

namespace orvane::desk::explore {

namespace {

constexpr std::array<std::string_view, 8> sharedWords{"Dock",   "Orvane",  "macOS", "English",
                                                      "Option", "Control", "Shift", "Command"};

bool isLatin(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Whether a three-byte UTF-8 sequence from U+2E80 (CJK Radicals Supplement) on begins here, which
/// includes full-width forms.
bool isChineseAt(std::string_view text, std::size_t place) {
  const auto byte = static_cast<unsigned char>(text[place]);
  if (byte < 0xE2 || byte > 0xEF || place + 1 >= text.size()) {
    return false;
  }
  return byte > 0xE2 || static_cast<unsigned char>(text[place + 1]) >= 0xBA;
}

bool hasChinese(std::string_view text) {
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (isChineseAt(text, place)) {
      return true;
    }
  }
  return false;
}

bool hasForeignLatin(std::string_view text) {
  std::size_t place = 0;
  while (place < text.size()) {
    std::size_t end = place;
    while (end < text.size() && isLatin(text[end])) {
      ++end;
    }
    if (end > place &&
        std::ranges::find(sharedWords, text.substr(place, end - place)) == sharedWords.end()) {
      return true;
    }
    place = std::max(end, place + 1);
  }
  return false;
}

std::string normal(std::string_view identifier) {
  std::string text;
  for (const char character : identifier) {
    if (std::isspace(static_cast<unsigned char>(character)) == 0) {
      text += character == '_'
                  ? '-'
                  : static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    }
  }
  return text;
}

bool isOf(std::string_view identifier, const std::string& language) {
  const std::string text = normal(identifier);
  return text == language || text.starts_with(language + "-");
}

constexpr Labels englishLabels{
    .pin = "Pin Dock",
    .unpin = "Unpin Dock",
    .prevent = "Prevent Dock Pop-Up",
    .allow = "Allow Dock Pop-Up",
    .notNow = "Not Now",
    .openWindow = "Open Window",
    .settings = "Settings",
    .close = "Close",
    .done = "Done",
    .minimise = "Minimise",
    .quit = "Quit",
    .openAtLogin = "Open at Login",
    .openPrivacySettings = "Open Privacy Settings",
    .openDockSettings = "Open Dock Settings",
    .privacyPolicy = "Privacy Policy",
    .accessibilitySettings = "Accessibility Settings",
    .contactSupport = "Contact Support",
    .loginItems = "Login Items…",
    .language = "Language",
    .unlockShortcut = "Temporary Unlock Shortcut",
    .followSystem = "Follow System",
    .english = "English",
    .chinese = "Chinese",
    .locked = "Locked",
    .unlocked = "Unlocked",
    .pinned = "Pinned",
    .notPinned = "Not Pinned",
    .enabled = "Enabled",
    .off = "Off",
    .approve = "Approve Orvane in Login Items",
    .moveToApplications = "To open at login, move Orvane to Applications",
    .mainDisplay = "Main Display",
    .upperDisplay = "Upper Display",
    .lowerDisplay = "Lower Display",
    .leftDisplay = "Left Display",
    .rightDisplay = "Right Display",
    .externalDisplay = "External Display"};

constexpr Labels chineseLabels{
    .pin = "固定 Dock",
    .unpin = "解除固定 Dock",
    .prevent = "防止 Dock 弹出",
    .allow = "允许 Dock 弹出",
    .notNow = "取消",
    .openWindow = "打开窗口",
    .settings = "设置",
    .close = "关闭",
    .done = "完成",
    .minimise = "最小化",
    .quit = "退出",
    .openAtLogin = "开机自动运行",
    .openPrivacySettings = "打开隐私设置",
    .openDockSettings = "打开 Dock 设置",
    .privacyPolicy = "隐私政策",
    .accessibilitySettings = "辅助功能设置",
    .contactSupport = "联系支持",
    .loginItems = "登录项…",
    .language = "语言",
    .unlockShortcut = "临时解锁快捷键",
    .followSystem = "跟随系统",
    .english = "English",
    .chinese = "中文",
    .locked = "已锁定",
    .unlocked = "未锁定",
    .pinned = "已固定",
    .notPinned = "未固定",
    .enabled = "已启用",
    .off = "未启用",
    .approve = "请在“登录项”中允许 Orvane",
    .moveToApplications = "要开机自动运行，请先将 Orvane 移到“应用程序”文件夹",
    .mainDisplay = "主显示器",
    .upperDisplay = "上方显示器",
    .lowerDisplay = "下方显示器",
    .leftDisplay = "左侧显示器",
    .rightDisplay = "右侧显示器",
    .externalDisplay = "外接显示器"};

}  // namespace

Language languageFor(std::string_view choice, const LocaleSettings& locale) {
  if (choice == "chinese" || choice == "english") {
    return choice == "chinese" ? Language::chinese : Language::english;
  }
  std::vector<std::string> candidates = locale.preferredLanguages;
  candidates.push_back(locale.currentIdentifier);
  for (const std::string& candidate : candidates) {
    if (isOf(candidate, "zh")) {
      return Language::chinese;
    }
    if (isOf(candidate, "en")) {
      return Language::english;
    }
  }
  return Language::english;
}

bool isWrittenIn(Language language, std::string text, const std::set<std::string>& names) {
  // In reverse order, because a name sorts after its own prefixes.
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    for (std::size_t place = text.find(*name); !name->empty() && place != std::string::npos;
         place = text.find(*name)) {
      text.erase(place, name->size());
    }
  }
  return language == Language::english ? !hasChinese(text) : !hasForeignLatin(text);
}

const Labels& labelsIn(Language language) {
  return language == Language::english ? englishLabels : chineseLabels;
}

std::string languageItem(std::string_view choice, Language language) {
  const Labels& words = labelsIn(language);
  if (choice == "english") {
    return words.english;
  }
  return choice == "chinese" ? words.chinese : words.followSystem;
}

std::string shortcutItem(std::string_view modifier) {
  if (modifier == "control") {
    return "⌃ Control";
  }
  if (modifier == "shift") {
    return "⇧ Shift";
  }
  return modifier == "command" ? "⌘ Command" : "⌥ Option";
}

}  // namespace orvane::desk::explore
