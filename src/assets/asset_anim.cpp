// Animation and skeleton file readers.
//
// A file is read whole into a staging buffer and checked against the tables before anything
// is stored, so a refused file leaves every table as it was.
#include "assets/asset_anim.h"

#include <cstdio>
#include <cstring>

#include "assets/asset_le.h"
#include "assets/asset_report.h"
#include "fight/fight_state.h"
#include "platform/platform.h"

AnimState Anim;

namespace {

constexpr int kPackedRecord = 3 * 4 + 3 * 2;  // three packed rows, translation
constexpr int kPlainRecord = 9 * 2 + 3 * 2;   // nine entries, translation
constexpr int kMostRecords = 17;              // parts 2..16, 19, 20
constexpr std::size_t kStagingBytes =
    static_cast<std::size_t>(SHARED_KEYS) * kMostRecords * kPlainRecord;
std::uint8_t Staging[kStagingBytes];

struct AnimFile {
  AnimKind kind;
  int last_key;
  int last_part;
};

bool has_record(const AnimKind& kind, int p) {
  if (p == 17 || p == 18 || p == 21) return false;
  return !((p == 19 || p == 20) && kind.arm_free);
}

int records_per_key(const AnimFile& f) {
  int n = 0;
  for (int p = ANIM_FIRST_PART; p <= f.last_part; ++p) n += has_record(f.kind, p);
  return n;
}

enum class Read { Ok, NotOpened, Refused };

// Opens `name`, checks its counts against `key_capacity` and reads its records into Staging.
// A refusal records its reason.
Read read_anim_file(const char* name, int key_capacity, AnimFile* f) {
  if (!Anim_KindOfName(name, &f->kind)) {
    Load_Refused(name, "the name has no extension to tell the animation kind");
    return Read::Refused;
  }
  std::FILE* file = Plat_OpenFile(name, "rb");
  if (file == nullptr) {
    Load_NotOpened(name);
    return Read::NotOpened;
  }
  std::uint8_t head[4];
  const std::size_t head_got = std::fread(head, 1, sizeof head, file);
  if (head_got != sizeof head) {
    std::fclose(file);
    Load_Refused(name, "too short: %zu bytes, less than the 4-byte head", head_got);
    return Read::Refused;
  }
  f->last_key = le::i16(head);
  f->last_part = le::i16(head + 2);
  if (f->last_key < 0 || f->last_key >= key_capacity) {
    std::fclose(file);
    Load_Refused(name, "last key frame %d is past the capacity (0 to %d)", f->last_key,
                 key_capacity - 1);
    return Read::Refused;
  }
  if (f->last_part < ANIM_FIRST_PART || f->last_part > ANIM_LAST_PART) {
    std::fclose(file);
    Load_Refused(name, "last part %d is outside %d to %d", f->last_part, ANIM_FIRST_PART,
                 ANIM_LAST_PART);
    return Read::Refused;
  }
  const std::size_t need = static_cast<std::size_t>(f->last_key + 1) * records_per_key(*f) *
                           (f->kind.plain ? kPlainRecord : kPackedRecord);
  const std::size_t got = std::fread(Staging, 1, need, file);
  std::fclose(file);
  if (got != need) {
    Load_Refused(name, "too short: %zu of the %zu record bytes its %d key frames need", got, need,
                 f->last_key + 1);
    return Read::Refused;
  }
  return Read::Ok;
}

// One key frame's parts, at index p - 2; `set` is false for a part the key frame leaves alone.
struct KeyParts {
  std::int16_t rot[ANIM_PARTS][9];
  std::int16_t pos[ANIM_PARTS][3];
  bool set[ANIM_PARTS];
};

const std::uint8_t* decode_record(const AnimKind& kind, const std::uint8_t* cur,
                                  std::int16_t rot[9], std::int16_t pos[3]) {
  if (kind.plain) {
    for (int e = 0; e < 9; ++e, cur += 2) rot[e] = le::i16(cur);
  } else {
    for (int r = 0; r < 3; ++r, cur += 4) Unpack_Row(le::i32(cur), rot + 3 * r);
  }
  for (int e = 0; e < 3; ++e, cur += 2) pos[e] = le::i16(cur);
  return cur;
}

// Fills a part that has no record: 17 and 18 copy the hands 7 and 13; in an arm-free file 19
// and 20 collapse to a point at the hands' positions; 21 is left alone.
void fill_part(const AnimKind& kind, int p, KeyParts* key) {
  const int i = p - ANIM_FIRST_PART;
  const int hand = (p == 17 || p == 19) ? 7 - ANIM_FIRST_PART : 13 - ANIM_FIRST_PART;
  if (p == 17 || p == 18) {
    std::memcpy(key->rot[i], key->rot[hand], sizeof key->rot[i]);
  } else if ((p == 19 || p == 20) && kind.arm_free) {
    std::memset(key->rot[i], 0, sizeof key->rot[i]);
  } else {
    return;
  }
  std::memcpy(key->pos[i], key->pos[hand], sizeof key->pos[i]);
  key->set[i] = true;
}

// Decodes the staged key frames in order, handing each to `store(k, key)`.
template <typename Store>
void decode_keys(const AnimFile& f, Store store) {
  const std::uint8_t* cur = Staging;
  KeyParts key;
  for (int k = 0; k <= f.last_key; ++k) {
    std::memset(key.set, 0, sizeof key.set);
    for (int p = ANIM_FIRST_PART; p <= f.last_part; ++p) {
      const int i = p - ANIM_FIRST_PART;
      if (has_record(f.kind, p)) {
        cur = decode_record(f.kind, cur, key.rot[i], key.pos[i]);
        key.set[i] = true;
      } else {
        fill_part(f.kind, p, &key);
      }
    }
    store(k, key);
  }
}

}  // namespace

bool Anim_KindOfName(const char* name, AnimKind* kind) {
  const char* dot = std::strchr(name, '.');
  if (dot == nullptr) return false;
  const char second = dot[1] != '\0' ? dot[2] : '\0';
  const char third = second != '\0' ? dot[3] : '\0';
  kind->plain = third == '3';
  kind->arm_free = second == 'A' || second == 'a';
  return true;
}

void Unpack_Row(std::int32_t v, std::int16_t out[3]) {
  out[0] = static_cast<std::int16_t>(v % 1000 - 500);
  out[1] = static_cast<std::int16_t>(v / 1000 % 1000 - 500);
  out[2] = static_cast<std::int16_t>(v / 1000000 - 500);
}

bool Load_PreloadFA(const char* name) {
  AnimFile f;
  if (read_anim_file(name, SHARED_KEYS, &f) != Read::Ok) return false;
  decode_keys(f, [](int k, const KeyParts& key) {
    for (int i = 0; i < ANIM_PARTS; ++i) {
      if (!key.set[i]) continue;
      std::memcpy(Anim.PreloadRot[k][i], key.rot[i], sizeof key.rot[i]);
      std::memcpy(Anim.PreloadPos[0][k][i], key.pos[i], sizeof key.pos[i]);
      std::memcpy(Anim.PreloadPos[1][k][i], key.pos[i], sizeof key.pos[i]);
    }
  });
  Anim.shared_keys = f.last_key + 1;
  for (Fighter& fighter : fighters) {
    fighter.first_part = ANIM_FIRST_PART;
    fighter.last_shared_key = f.last_key;
  }
  return true;
}

bool Load_FA(const char* name, const char* skeleton, int player) {
  if (player < 0 || player > 1) return false;
  Load_BSC(skeleton);
  Fit_Skeleton(player);
  AnimFile f;
  const Read r = read_anim_file(name, CHARACTER_KEYS, &f);
  if (r == Read::NotOpened) std::printf("file open error %s", name);
  if (r != Read::Ok) return false;
  decode_keys(f, [player](int k, const KeyParts& key) {
    for (int i = 0; i < ANIM_PARTS; ++i) {
      if (!key.set[i]) continue;
      std::int16_t* out = Anim.CharKeys[player][k][i];
      std::memcpy(out, key.rot[i], sizeof key.rot[i]);
      std::memcpy(out + 9, key.pos[i], sizeof key.pos[i]);
    }
  });
  Anim.char_keys[player] = f.last_key + 1;
  return true;
}

namespace {

// Stages a skeleton file into Anim.Skeleton; false with the reason recorded.
bool read_bsc(const char* name) {
  std::FILE* file = Plat_OpenFile(name, "rb");
  if (file == nullptr) {
    Load_NotOpened(name);
    return false;
  }
  std::uint8_t buf[2 + SKELETON_LAST_PART * 12];
  const std::size_t got = std::fread(buf, 1, sizeof buf, file);
  std::fclose(file);
  if (got < 2) {
    Load_Refused(name, "too short: %zu bytes, less than the 2-byte count", got);
    return false;
  }
  const int n = le::i16(buf);
  if (n < 1 || n > SKELETON_LAST_PART) {
    Load_Refused(name, "last part %d is outside 1 to %d", n, SKELETON_LAST_PART);
    return false;
  }
  const std::size_t need = 2 + static_cast<std::size_t>(n - 1) * 12;
  if (got < need) {
    Load_Refused(name, "too short: %zu of the %zu bytes its %d parts need", got, need, n);
    return false;
  }
  const std::uint8_t* cur = buf + 2;
  for (int p = 2; p <= n; ++p)
    for (int axis = 0; axis < 3; ++axis, cur += 4) Anim.Skeleton[p][axis] = le::f32(cur);
  return true;
}

}  // namespace

bool Load_BSC(const char* name) {
  if (read_bsc(name)) return true;
  Report_GoesOn("the skeleton read before stays");
  return false;
}
