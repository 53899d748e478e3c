#include "platform/native_keyboard.h"

#define explicit explicit_  // a name in the header
#include <xcb/xkb.h>
#undef explicit

#include <algorithm>
#include <cctype>
#include <span>
#include <string_view>

#include "platform/x11/xcb_reply.h"

namespace holdem {
namespace {

constexpr xcb_xkb_device_spec_t kKeyboard = XCB_XKB_ID_USE_CORE_KBD;

// What the keys of each row give on a keyboard for English, from the row's first key code on.
struct Row {
  std::uint32_t firstKey;
  std::string_view signs;
};
constexpr Row kRows[] = {
    {10, "1234567890"}, {24, "qwertyuiop"}, {38, "asdfghjkl"}, {52, "zxcvbnm"}};

char SignOfKey(std::uint32_t key) {
  for (const auto& [first, signs] : kRows) {
    if (key >= first && key - first < signs.size()) return signs[key - first];
  }
  return 0;
}

// Which of the several layouts that a keyboard may have, as every event tells it.
std::uint32_t GroupOf(std::uint32_t modifiers) { return modifiers >> 13 & 3; }

// Null where there is no connection, and where the server lacks the extension: a request to it
// would end the connection.
xcb_connection_t* Connected(void* display) {
  auto* const connection = static_cast<xcb_connection_t*>(display);
  if (connection == nullptr) return nullptr;
  return HasExtension(connection, xcb_xkb_id) ? connection : nullptr;
}

// Whether one of the group's keys gives the sign, alone or with Shift.
bool Gives(xcb_connection_t* display, std::uint32_t group, xcb_keysym_t sign) {
  const auto asked = xcb_xkb_get_map(display, kKeyboard, XCB_XKB_MAP_PART_KEY_SYMS, 0, 0, 0, 0, 0,
                                     0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  const Owned<xcb_xkb_get_map_reply_t> reply(xcb_xkb_get_map_reply(display, asked, nullptr));
  if (!reply) return true;  // each key stays what it is
  xcb_xkb_get_map_map_t map;
  xcb_xkb_get_map_map_unpack(xcb_xkb_get_map_map(reply.get()), reply->nTypes, reply->nKeySyms,
                             reply->nKeyActions, reply->totalActions, reply->totalKeyBehaviors,
                             reply->virtualMods, reply->totalKeyExplicit, reply->totalModMapKeys,
                             reply->totalVModMapKeys, reply->present, &map);
  auto keys = xcb_xkb_get_map_map_syms_rtrn_iterator(reply.get(), &map);
  for (; keys.rem > 0; xcb_xkb_key_sym_map_next(&keys)) {
    const std::uint32_t groups = keys.data->groupInfo & 0xF;
    if (groups == 0) continue;
    const std::span signs(xcb_xkb_key_sym_map_syms(keys.data), keys.data->nSyms);
    const auto ofGroup = signs.subspan(group % groups * keys.data->width, keys.data->width);
    const auto withShift = std::min<std::size_t>(2, ofGroup.size());
    if (std::ranges::count(ofGroup.first(withShift), sign) > 0) return true;
  }
  return false;
}

}  // namespace

bool TellWhatIsHeld(void* display) {
  xcb_connection_t* const connection = Connected(display);
  if (connection == nullptr) return false;
  constexpr auto kFlag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const auto asked = xcb_xkb_per_client_flags(connection, kKeyboard, kFlag, kFlag, 0, 0, 0);
  const Owned<xcb_xkb_per_client_flags_reply_t> reply(
      xcb_xkb_per_client_flags_reply(connection, asked, nullptr));
  return reply && (reply->value & kFlag) != 0;
}

char LatinOfKey(const NativeKey& key, void* display) {
  const auto sign = static_cast<unsigned char>(SignOfKey(key.scanCode));
  if (std::isdigit(sign)) return static_cast<char>(sign);
  xcb_connection_t* const connection = std::isalpha(sign) ? Connected(display) : nullptr;
  const bool here = connection != nullptr && !Gives(connection, GroupOf(key.modifiers), sign);
  return here ? static_cast<char>(std::toupper(sign)) : '\0';
}

}  // namespace holdem
