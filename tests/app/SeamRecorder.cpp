// Every function here stands in for one of the seam: it notes the call and passes it on. A member
// function is declared as a free one with the object first, which the calling convention of the
// desk's platforms treats alike. The names are those that the compiler gives the seam's functions;
// the list in CMakeLists.txt must name the same ones, or the linker complains.
#include "tests/app/SeamRecorder.hpp"

#include <cstdio>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Image.hpp"
#include "Orvane/platform/appkit/LoginItem.hpp"
#include "Orvane/platform/appkit/Menu.hpp"
#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "Orvane/platform/appkit/StatusItem.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "Orvane/platform/appkit/UserDefaults.hpp"
#include "desk/windows/Implementations.hpp"

#define REAL(name) asm("__real_" name)
#define WRAPPED(name) asm("__wrap_" name)

namespace orvane {

namespace {

std::vector<std::string>* recorded = nullptr;
int screenListCount = 0;

void note(std::string call) {
  if (recorded != nullptr) {
    recorded->push_back(std::move(call));
  }
}

appkit::ApplicationDelegate& givenDelegate() {
  static appkit::ApplicationDelegate given;
  return given;
}

/// For the calls on a window, which is called by its class.
void note(const appkit::Window& window, const std::string& call) {
  if (recorded != nullptr) {
    note(window.implementation()->className + "." + call);
  }
}

std::string number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

std::string inQuotes(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

}  // namespace

SeamRecorder::SeamRecorder() {
  recorded = &calls_;
  screenListCount = 0;
}

SeamRecorder::~SeamRecorder() {
  recorded = nullptr;
}

std::string SeamRecorder::text() const {
  std::string all;
  for (const std::string& call : calls_) {
    all += call + "\n";
  }
  return all;
}

int SeamRecorder::screenLists() {
  return screenListCount;
}

const appkit::ApplicationDelegate& SeamRecorder::delegate() {
  return givenDelegate();
}

using namespace appkit;
using Task = std::function<void()>;

// Application

void realSetDelegate(ApplicationDelegate)
    REAL("_ZN6orvane6appkit11Application11setDelegateENS0_19ApplicationDelegateE");
void setDelegate(ApplicationDelegate)
    WRAPPED("_ZN6orvane6appkit11Application11setDelegateENS0_19ApplicationDelegateE");
void setDelegate(ApplicationDelegate delegate) {
  note("Application.setDelegate");
  givenDelegate() = delegate;
  realSetDelegate(std::move(delegate));
}

void realSetActivationPolicy(ActivationPolicy)
    REAL("_ZN6orvane6appkit11Application19setActivationPolicyENS0_16ActivationPolicyE");
void setActivationPolicy(ActivationPolicy)
    WRAPPED("_ZN6orvane6appkit11Application19setActivationPolicyENS0_16ActivationPolicyE");
void setActivationPolicy(ActivationPolicy policy) {
  note("Application.setActivationPolicy " + std::to_string(static_cast<int>(policy)));
  realSetActivationPolicy(policy);
}

void realActivate() REAL("_ZN6orvane6appkit11Application25activateIgnoringOtherAppsEv");
void activate() WRAPPED("_ZN6orvane6appkit11Application25activateIgnoringOtherAppsEv");
void activate() {
  note("Application.activateIgnoringOtherApps");
  realActivate();
}

void realRunModal(const Window&, std::function<void(int)>)
    REAL("_ZN6orvane6appkit11Application8runModalERKNS0_6WindowESt8functionIFviEE");
void runModal(const Window&, std::function<void(int)>)
    WRAPPED("_ZN6orvane6appkit11Application8runModalERKNS0_6WindowESt8functionIFviEE");
void runModal(const Window& window, std::function<void(int)> ended) {
  note("Application.runModal");
  realRunModal(window, std::move(ended));
}

void realTerminate() REAL("_ZN6orvane6appkit11Application9terminateEv");
void terminate() WRAPPED("_ZN6orvane6appkit11Application9terminateEv");
void terminate() {
  note("Application.terminate");
  realTerminate();
}

// Window

// A window of its own and the base of one of the application's classes.
void realMakeWindow(void*, WindowKind, CGRect, std::uint64_t)
    REAL("_ZN6orvane6appkit6WindowC1ENS0_10WindowKindE6CGRectm");
void makeWindow(void*, WindowKind, CGRect, std::uint64_t)
    WRAPPED("_ZN6orvane6appkit6WindowC1ENS0_10WindowKindE6CGRectm");
void makeWindow(void* window, WindowKind kind, CGRect contentRect, std::uint64_t styleMask) {
  note("Window");
  realMakeWindow(window, kind, contentRect, styleMask);
}
void makeWindowBase(void*, WindowKind, CGRect, std::uint64_t)
    WRAPPED("_ZN6orvane6appkit6WindowC2ENS0_10WindowKindE6CGRectm");
void makeWindowBase(void* window, WindowKind kind, CGRect contentRect, std::uint64_t styleMask) {
  makeWindow(window, kind, contentRect, styleMask);
}

void realDeminiaturize(Window*) REAL("_ZN6orvane6appkit6Window13deminiaturizeEv");
void deminiaturize(Window*) WRAPPED("_ZN6orvane6appkit6Window13deminiaturizeEv");
void deminiaturize(Window* window) {
  note(*window, "deminiaturize");
  realDeminiaturize(window);
}

void realMakeKeyAndOrderFront(Window*) REAL("_ZN6orvane6appkit6Window20makeKeyAndOrderFrontEv");
void makeKeyAndOrderFront(Window*) WRAPPED("_ZN6orvane6appkit6Window20makeKeyAndOrderFrontEv");
void makeKeyAndOrderFront(Window* window) {
  note(*window, "makeKeyAndOrderFront");
  realMakeKeyAndOrderFront(window);
}

void realOrderFrontRegardless(Window*) REAL("_ZN6orvane6appkit6Window20orderFrontRegardlessEv");
void orderFrontRegardless(Window*) WRAPPED("_ZN6orvane6appkit6Window20orderFrontRegardlessEv");
void orderFrontRegardless(Window* window) {
  note(*window, "orderFrontRegardless");
  realOrderFrontRegardless(window);
}

void realClose(Window*) REAL("_ZN6orvane6appkit6Window5closeEv");
void close(Window*) WRAPPED("_ZN6orvane6appkit6Window5closeEv");
void close(Window* window) {
  note(*window, "close");
  realClose(window);
}

void realAddChild(Window*, const Window&)
    REAL("_ZN6orvane6appkit6Window19addChildWindowAboveERKS1_");
void addChild(Window*, const Window&)
    WRAPPED("_ZN6orvane6appkit6Window19addChildWindowAboveERKS1_");
void addChild(Window* window, const Window& child) {
  note(*window, "addChildWindowAbove " + child.implementation()->className);
  realAddChild(window, child);
}

void realRemoveChild(Window*, const Window&)
    REAL("_ZN6orvane6appkit6Window17removeChildWindowERKS1_");
void removeChild(Window*, const Window&)
    WRAPPED("_ZN6orvane6appkit6Window17removeChildWindowERKS1_");
void removeChild(Window* window, const Window& child) {
  note(*window, "removeChildWindow " + child.implementation()->className);
  realRemoveChild(window, child);
}

// StatusItem

void realMakeStatusItem(StatusItem*) REAL("_ZN6orvane6appkit10StatusItemC1Ev");
void makeStatusItem(StatusItem*) WRAPPED("_ZN6orvane6appkit10StatusItemC1Ev");
void makeStatusItem(StatusItem* item) {
  note("StatusItem");
  realMakeStatusItem(item);
}

void realSetAutosaveName(StatusItem*, std::string_view) REAL(
    "_ZN6orvane6appkit10StatusItem15setAutosaveNameESt17basic_string_viewIcSt11char_traitsIcEE");
void setAutosaveName(StatusItem*, std::string_view) WRAPPED(
    "_ZN6orvane6appkit10StatusItem15setAutosaveNameESt17basic_string_viewIcSt11char_traitsIcEE");
void setAutosaveName(StatusItem* item, std::string_view name) {
  note("StatusItem.setAutosaveName " + inQuotes(name));
  realSetAutosaveName(item, name);
}

void realSetImagePosition(StatusItem*, ImagePosition)
    REAL("_ZN6orvane6appkit10StatusItem16setImagePositionENS0_13ImagePositionE");
void setImagePosition(StatusItem*, ImagePosition)
    WRAPPED("_ZN6orvane6appkit10StatusItem16setImagePositionENS0_13ImagePositionE");
void setImagePosition(StatusItem* item, ImagePosition position) {
  note("StatusItem.setImagePosition " + std::to_string(static_cast<int>(position)));
  realSetImagePosition(item, position);
}

void realSetImageScaling(StatusItem*, ImageScaling)
    REAL("_ZN6orvane6appkit10StatusItem15setImageScalingENS0_12ImageScalingE");
void setImageScaling(StatusItem*, ImageScaling)
    WRAPPED("_ZN6orvane6appkit10StatusItem15setImageScalingENS0_12ImageScalingE");
void setImageScaling(StatusItem* item, ImageScaling scaling) {
  note("StatusItem.setImageScaling " + std::to_string(static_cast<int>(scaling)));
  realSetImageScaling(item, scaling);
}

void realSetSquareLength(StatusItem*) REAL("_ZN6orvane6appkit10StatusItem15setSquareLengthEv");
void setSquareLength(StatusItem*) WRAPPED("_ZN6orvane6appkit10StatusItem15setSquareLengthEv");
void setSquareLength(StatusItem* item) {
  note("StatusItem.setSquareLength");
  realSetSquareLength(item);
}

void realSetMenu(StatusItem*, const Menu&)
    REAL("_ZN6orvane6appkit10StatusItem7setMenuERKNS0_4MenuE");
void setMenu(StatusItem*, const Menu&)
    WRAPPED("_ZN6orvane6appkit10StatusItem7setMenuERKNS0_4MenuE");
void setMenu(StatusItem* item, const Menu& menu) {
  note("StatusItem.setMenu");
  realSetMenu(item, menu);
}

void realSetAccessibilityValue(StatusItem*, std::string_view) REAL(
    "_ZN6orvane6appkit10StatusItem21setAccessibilityValueE"
    "St17basic_string_viewIcSt11char_traitsIcEE");
void setAccessibilityValue(StatusItem*, std::string_view) WRAPPED(
    "_ZN6orvane6appkit10StatusItem21setAccessibilityValueE"
    "St17basic_string_viewIcSt11char_traitsIcEE");
void setAccessibilityValue(StatusItem* item, std::string_view value) {
  note("StatusItem.setAccessibilityValue " + inQuotes(value));
  realSetAccessibilityValue(item, value);
}

void realSetImage(StatusItem*, const std::optional<Image>&)
    REAL("_ZN6orvane6appkit10StatusItem8setImageERKSt8optionalINS0_5ImageEE");
void setImage(StatusItem*, const std::optional<Image>&)
    WRAPPED("_ZN6orvane6appkit10StatusItem8setImageERKSt8optionalINS0_5ImageEE");
void setImage(StatusItem* item, const std::optional<Image>& image) {
  note(image ? "StatusItem.setImage" : "StatusItem.setImage none");
  realSetImage(item, image);
}

// Image

std::optional<Image> realSystemSymbol(std::string_view, std::string_view, double, SymbolWeight)
    REAL(
        "_ZN6orvane6appkit5Image12systemSymbolESt17basic_string_viewIcSt11char_traitsIcEES5_dNS0_"
        "12SymbolWeightE");
std::optional<Image> systemSymbol(std::string_view, std::string_view, double, SymbolWeight) WRAPPED(
    "_ZN6orvane6appkit5Image12systemSymbolESt17basic_string_viewIcSt11char_traitsIcEES5_dNS0_"
    "12SymbolWeightE");
std::optional<Image> systemSymbol(std::string_view name, std::string_view description,
                                  double pointSize, SymbolWeight weight) {
  note("Image.systemSymbol " + inQuotes(name) + " " + inQuotes(description) + " " +
       number(pointSize));
  return realSystemSymbol(name, description, pointSize, weight);
}

void realSetTemplate(Image*, bool) REAL("_ZN6orvane6appkit5Image11setTemplateEb");
void setTemplate(Image*, bool) WRAPPED("_ZN6orvane6appkit5Image11setTemplateEb");
void setTemplate(Image* image, bool isTemplate) {
  note(isTemplate ? "Image.setTemplate true" : "Image.setTemplate false");
  realSetTemplate(image, isTemplate);
}

void realSetSize(Image*, CGSize) REAL("_ZN6orvane6appkit5Image7setSizeE6CGSize");
void setSize(Image*, CGSize) WRAPPED("_ZN6orvane6appkit5Image7setSizeE6CGSize");
void setSize(Image* image, CGSize size) {
  note("Image.setSize " + number(size.width) + " " + number(size.height));
  realSetSize(image, size);
}

// Menu

void realOnWillOpen(Menu*, Task) REAL("_ZN6orvane6appkit4Menu10onWillOpenESt8functionIFvvEE");
void onWillOpen(Menu*, Task) WRAPPED("_ZN6orvane6appkit4Menu10onWillOpenESt8functionIFvvEE");
void onWillOpen(Menu* menu, Task willOpen) {
  note("Menu.onWillOpen");
  realOnWillOpen(menu, std::move(willOpen));
}

void realCancelTracking(Menu*, Task)
    REAL("_ZN6orvane6appkit4Menu14cancelTrackingESt8functionIFvvEE");
void cancelTracking(Menu*, Task)
    WRAPPED("_ZN6orvane6appkit4Menu14cancelTrackingESt8functionIFvvEE");
void cancelTracking(Menu* menu, Task ended) {
  note("Menu.cancelTracking");
  realCancelTracking(menu, std::move(ended));
}

void noteItem(const std::string& call, std::size_t index, const MenuItem& item) {
  note("Menu." + call + " " + std::to_string(index) + " " +
       (item.isSeparator ? std::string("-") : inQuotes(item.title)));
}

void realInsertItem(Menu*, std::size_t, MenuItem)
    REAL("_ZN6orvane6appkit4Menu10insertItemEmNS0_8MenuItemE");
void insertItem(Menu*, std::size_t, MenuItem)
    WRAPPED("_ZN6orvane6appkit4Menu10insertItemEmNS0_8MenuItemE");
void insertItem(Menu* menu, std::size_t index, MenuItem item) {
  noteItem("insertItem", index, item);
  realInsertItem(menu, index, std::move(item));
}

void realChangeItem(Menu*, std::size_t, MenuItem)
    REAL("_ZN6orvane6appkit4Menu10changeItemEmNS0_8MenuItemE");
void changeItem(Menu*, std::size_t, MenuItem)
    WRAPPED("_ZN6orvane6appkit4Menu10changeItemEmNS0_8MenuItemE");
void changeItem(Menu* menu, std::size_t index, MenuItem item) {
  noteItem("changeItem", index, item);
  realChangeItem(menu, index, std::move(item));
}

void realRemoveItem(Menu*, std::size_t) REAL("_ZN6orvane6appkit4Menu10removeItemEm");
void removeItem(Menu*, std::size_t) WRAPPED("_ZN6orvane6appkit4Menu10removeItemEm");
void removeItem(Menu* menu, std::size_t index) {
  note("Menu.removeItem " + std::to_string(index));
  realRemoveItem(menu, index);
}

// Screen

std::vector<Screen> realScreens() REAL("_ZN6orvane6appkit6Screen7screensEv");
std::vector<Screen> screens() WRAPPED("_ZN6orvane6appkit6Screen7screensEv");
std::vector<Screen> screens() {
  ++screenListCount;
  return realScreens();
}

// Timer

Timer realRepeating(double, RunLoopMode, Task)
    REAL("_ZN6orvane6appkit5Timer9repeatingEdNS0_11RunLoopModeESt8functionIFvvEE");
Timer repeating(double, RunLoopMode, Task)
    WRAPPED("_ZN6orvane6appkit5Timer9repeatingEdNS0_11RunLoopModeESt8functionIFvvEE");
Timer repeating(double intervalSeconds, RunLoopMode mode, Task tick) {
  note("Timer.repeating " + number(intervalSeconds) +
       (mode == RunLoopMode::standard ? " standard" : " common"));
  return realRepeating(intervalSeconds, mode, std::move(tick));
}

// What the model stores, asks and listens to

void realSetString(std::string_view, std::string_view)
    REAL("_ZN6orvane6appkit12UserDefaults9setStringESt17basic_string_viewIcSt11char_traitsIcEES5_");
void setString(std::string_view, std::string_view) WRAPPED(
    "_ZN6orvane6appkit12UserDefaults9setStringESt17basic_string_viewIcSt11char_traitsIcEES5_");
void setString(std::string_view key, std::string_view value) {
  note("UserDefaults.setString " + inQuotes(key) + " " + inQuotes(value));
  realSetString(key, value);
}

void realSetBoolean(std::string_view, bool)
    REAL("_ZN6orvane6appkit12UserDefaults10setBooleanESt17basic_string_viewIcSt11char_traitsIcEEb");
void setBoolean(std::string_view, bool) WRAPPED(
    "_ZN6orvane6appkit12UserDefaults10setBooleanESt17basic_string_viewIcSt11char_traitsIcEEb");
void setBoolean(std::string_view key, bool value) {
  note("UserDefaults.setBoolean " + inQuotes(key) + (value ? " true" : " false"));
  realSetBoolean(key, value);
}

LoginItem::Status realStatus() REAL("_ZN6orvane6appkit9LoginItem6statusEv");
LoginItem::Status status() WRAPPED("_ZN6orvane6appkit9LoginItem6statusEv");
LoginItem::Status status() {
  note("LoginItem.status");
  return realStatus();
}

ObserverToken realAddObserver(NotificationName, Task) REAL(
    "_ZN6orvane6appkit18NotificationCenter11addObserverENS0_16NotificationNameESt8functionIFvvEE");
ObserverToken addObserver(NotificationName, Task) WRAPPED(
    "_ZN6orvane6appkit18NotificationCenter11addObserverENS0_16NotificationNameESt8functionIFvvEE");
ObserverToken addObserver(NotificationName name, Task block) {
  note("NotificationCenter.addObserver");
  return realAddObserver(name, std::move(block));
}

Boolean realIsTrusted() REAL("AXIsProcessTrusted");
Boolean isTrusted() WRAPPED("AXIsProcessTrusted");
Boolean isTrusted() {
  note("AXIsProcessTrusted");
  return realIsTrusted();
}

CFMachPortRef realCreateTap(CGEventTapLocation, CGEventTapPlacement, CGEventTapOptions, CGEventMask,
                            CGEventTapCallBack, void*) REAL("CGEventTapCreate");
CFMachPortRef createTap(CGEventTapLocation, CGEventTapPlacement, CGEventTapOptions, CGEventMask,
                        CGEventTapCallBack, void*) WRAPPED("CGEventTapCreate");
CFMachPortRef createTap(CGEventTapLocation tap, CGEventTapPlacement place,
                        CGEventTapOptions options, CGEventMask events, CGEventTapCallBack callback,
                        void* userInfo) {
  note("CGEventTapCreate");
  return realCreateTap(tap, place, options, events, callback, userInfo);
}

}  // namespace orvane
