// The headless backend's input script and PNG capture.
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/headless/headless.h"
#include "platform/platform.h"

namespace {

enum class EventKind : std::uint8_t { KeyDown, KeyUp, JoyAxis, JoyButtonDown, JoyButtonUp };

struct ScriptEvent {
  long frame;
  EventKind kind;
  int code;   // key code, or pad number
  int what;   // axis letter or button number
  std::uint32_t value;
};

constexpr int kMaxEvents = 65536;
ScriptEvent Events[kMaxEvents];  // sorted by frame (stable)
int EventCount = 0;
int NextEvent = 0;

// A key event a player repeats while the game shows one mode: on every frame whose count since
// the mode was entered is `offset` more than a multiple of `every`.
struct RepeatEvent {
  int mode;
  long every;
  long offset;
  EventKind kind;  // KeyDown (a tap's release comes on the next frame) or KeyUp
  bool tap;
  int code;
};

constexpr int kMaxRepeats = 256;
RepeatEvent Repeats[kMaxRepeats];
int RepeatCount = 0;
std::uint8_t TapRelease[256];  // keys a repeated tap pressed on the frame before

struct KeyName {
  const char* name;
  int code;
};
constexpr KeyName kKeyNames[] = {
    {"F1", VK_F1_},       {"F2", VK_F2_},         {"ESC", VK_ESCAPE_},   // system keys
    {"ESCAPE", VK_ESCAPE_}, {"TAB", VK_TAB_},     {"CAPSLOCK", VK_CAPITAL_},
    {"LEFT", VK_LEFT_},   {"RIGHT", VK_RIGHT_},   {"UP", VK_UP_},         // arrows
    {"DOWN", VK_DOWN_},
};

bool add_event(const ScriptEvent& e) {
  if (EventCount >= kMaxEvents) return false;
  int i = EventCount++;
  while (i > 0 && Events[i - 1].frame > e.frame) {  // keep frame order, stable
    Events[i] = Events[i - 1];
    --i;
  }
  Events[i] = e;
  return true;
}

// "in MODE every N [+K] down|up|tap KEY", already split into tokens.
const char* parse_repeat(const char* const* tokens, int n) {
  constexpr const char* kForm = "expected in MODE every N [+K] down|up|tap KEY";
  if (n != 6 && n != 7) return kForm;
  if (std::strcmp(tokens[2], "every")) return kForm;
  char* end = nullptr;
  RepeatEvent r{};
  r.mode = static_cast<int>(std::strtol(tokens[1], &end, 10));
  if (*end != '\0') return "bad mode number";
  r.every = std::strtol(tokens[3], &end, 10);
  if (*end != '\0' || r.every < 1) return "bad repeat period";
  int next = 4;
  if (n == 7) {
    if (tokens[4][0] != '+') return kForm;
    r.offset = std::strtol(tokens[4] + 1, &end, 10);
    if (*end != '\0' || tokens[4][1] == '\0' || r.offset < 0 || r.offset >= r.every)
      return "the offset must be 0 up to the period";
    next = 5;
  }
  const char* verb = tokens[next];
  r.tap = !std::strcmp(verb, "tap");
  if (!r.tap && std::strcmp(verb, "down") && std::strcmp(verb, "up")) return kForm;
  r.kind = !std::strcmp(verb, "up") ? EventKind::KeyUp : EventKind::KeyDown;
  r.code = Headless_KeyCode(tokens[next + 1]);
  if (r.code < 0) return "unknown key name";
  if (RepeatCount >= kMaxRepeats) return "too many repeated events";
  Repeats[RepeatCount++] = r;
  return nullptr;
}

// Parses one non-empty line; returns an error text or nullptr.
const char* parse_line(char* line) {
  char* save = nullptr;
  const char* tokens[8] = {};
  int n = 0;
  for (char* t = strtok_r(line, " \t\r\n", &save); t && n < 8; t = strtok_r(nullptr, " \t\r\n", &save))
    tokens[n++] = t;
  if (n >= 1 && !std::strcmp(tokens[0], "in")) return parse_repeat(tokens, n);
  if (n < 3) return "expected FRAME EVENT ARGUMENTS";
  char* end = nullptr;
  const long frame = std::strtol(tokens[0], &end, 10);
  if (*end != '\0' || frame < 0) return "bad frame number";
  const char* verb = tokens[1];
  if (!std::strcmp(verb, "down") || !std::strcmp(verb, "up") || !std::strcmp(verb, "tap")) {
    if (n != 3) return "expected FRAME down|up|tap KEY";
    const int code = Headless_KeyCode(tokens[2]);
    if (code < 0) return "unknown key name";
    const bool ok = !std::strcmp(verb, "up")
                        ? add_event({frame, EventKind::KeyUp, code, 0, 0})
                        : add_event({frame, EventKind::KeyDown, code, 0, 0}) &&
                              (std::strcmp(verb, "tap") ||
                               add_event({frame + 1, EventKind::KeyUp, code, 0, 0}));
    return ok ? nullptr : "too many events";
  }
  if (std::strcmp(verb, "joy")) return "unknown event";
  const int pad = std::atoi(tokens[2]);
  if (pad < 1 || pad > 2 || n < 5) return "expected FRAME joy PAD axis|button ...";
  if (!std::strcmp(tokens[3], "axis")) {
    if (n != 6 || (std::strcmp(tokens[4], "x") && std::strcmp(tokens[4], "y")))
      return "expected FRAME joy PAD axis x|y VALUE";
    const long v = std::strtol(tokens[5], &end, 10);
    if (*end != '\0' || v < 0 || v > 65535) return "axis value must be 0..65535";
    return add_event({frame, EventKind::JoyAxis, pad, tokens[4][0], static_cast<std::uint32_t>(v)})
               ? nullptr : "too many events";
  }
  if (!std::strcmp(tokens[3], "button")) {
    if (n != 6) return "expected FRAME joy PAD button B down|up";
    const int b = std::atoi(tokens[4]);
    if (b < 1 || b > 32) return "button must be 1..32";
    const bool down = !std::strcmp(tokens[5], "down");
    if (!down && std::strcmp(tokens[5], "up")) return "expected down or up";
    return add_event({frame, down ? EventKind::JoyButtonDown : EventKind::JoyButtonUp, pad, b, 0})
               ? nullptr : "too many events";
  }
  return "expected axis or button";
}

void png_write_rows(std::FILE* file, const std::uint8_t* rgba, png_structp png, png_infop info) {
  png_init_io(png, file);
  png_set_IHDR(png, info, HEADLESS_WIDTH, HEADLESS_HEIGHT, 8, PNG_COLOR_TYPE_RGB,
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  static std::uint8_t row[HEADLESS_WIDTH * 3];
  for (int y = 0; y < HEADLESS_HEIGHT; ++y) {
    for (int x = 0; x < HEADLESS_WIDTH; ++x)
      std::memcpy(row + x * 3, rgba + (y * HEADLESS_WIDTH + x) * 4, 3);
    png_write_row(png, row);
  }
  png_write_end(png, nullptr);
}

}  // namespace

int Headless_KeyCode(const char* name) {
  if (name[0] >= 'A' && name[0] <= 'Z' && name[1] == '\0') return name[0];
  for (const KeyName& k : kKeyNames)
    if (!std::strcmp(k.name, name)) return k.code;
  return -1;
}

int Headless_LoadScript(const char* path, char* err, int err_size) {
  EventCount = NextEvent = RepeatCount = 0;
  std::memset(TapRelease, 0, sizeof TapRelease);
  std::FILE* file = std::fopen(path, "r");
  if (file == nullptr) {
    std::snprintf(err, err_size, "%s: cannot open the script", path);
    return 0;
  }
  char line[512];
  int number = 0;
  while (std::fgets(line, sizeof line, file)) {
    ++number;
    char* p = line;
    while (*p == ' ' || *p == '\t') ++p;
    if (*p == '#' || *p == '\n' || *p == '\r' || *p == '\0') continue;
    char copy[512];
    std::snprintf(copy, sizeof copy, "%s", p);
    copy[std::strcspn(copy, "\r\n")] = '\0';
    if (const char* why = parse_line(p)) {
      std::snprintf(err, err_size, "%s:%d: %s: \"%s\"", path, number, why, copy);
      std::fclose(file);
      return 0;
    }
  }
  std::fclose(file);
  return 1;
}

void Headless_ApplyScript(long frame, int mode, long mode_frames) {
  for (int k = 0; k < 256; ++k) {
    if (TapRelease[k] == 0) continue;
    TapRelease[k] = 0;
    Headless_SetKey(k, false);
  }
  for (int i = 0; i < RepeatCount; ++i) {
    const RepeatEvent& r = Repeats[i];
    if (r.mode != mode || mode_frames % r.every != r.offset) continue;
    Headless_SetKey(r.code, r.kind == EventKind::KeyDown);
    if (r.tap) TapRelease[r.code] = 1;
  }
  while (NextEvent < EventCount && Events[NextEvent].frame <= frame) {
    const ScriptEvent& e = Events[NextEvent++];
    switch (e.kind) {
      case EventKind::KeyDown: Headless_SetKey(e.code, true); break;
      case EventKind::KeyUp: Headless_SetKey(e.code, false); break;
      case EventKind::JoyAxis: Headless_SetJoyAxis(e.code, static_cast<char>(e.what), e.value); break;
      case EventKind::JoyButtonDown: Headless_SetJoyButton(e.code, e.what, true); break;
      case EventKind::JoyButtonUp: Headless_SetJoyButton(e.code, e.what, false); break;
    }
  }
}

int Headless_WritePng(const char* path) {
  std::FILE* file = std::fopen(path, "wb");
  if (file == nullptr) return 0;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  int ok = 0;
  if (png && info && !setjmp(png_jmpbuf(png))) {
    png_write_rows(file, Headless_Pixels(), png, info);
    ok = 1;
  }
  png_destroy_write_struct(&png, &info);
  std::fclose(file);
  return ok;
}
