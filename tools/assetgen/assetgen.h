// The content generator: shared context, the generator table's entry type, and the runner
// of external tool jobs.
#pragma once
#include <filesystem>
#include <string>
#include <vector>

namespace gen {

namespace fs = std::filesystem;

// Where a generator writes and what it may use.
struct Context {
  fs::path out;    // the data set (the game's working directory)
  fs::path work;   // scratch space, removed when the generator ends
  fs::path cache;  // results of external jobs kept between runs (may be empty: no cache)
};

// One kind of content. Returns false after printing what went wrong.
struct Generator {
  const char* name;
  bool (*run)(const Context&);
};

// Generators of the audio (assetgen_sounds.cpp, assetgen_music.cpp).
bool Generate_Sounds(const Context& ctx);
bool Generate_Music(const Context& ctx);
// The fighters' models, textures, alternate faces and skeletons (assetgen_figures.cpp).
bool Generate_Figures(const Context& ctx);
// The thrown objects' models and their pictures (assetgen_effect_models.cpp).
bool Generate_EffectModels(const Context& ctx);
// The shared motions, PRELOAD.FA and PRELOAD.TBL (assetgen_motions.cpp).
bool Generate_Motions(const Context& ctx);
// Every character's own animation and table files, and the opening's (assetgen_moves.cpp).
bool Generate_Moves(const Context& ctx);
// Every picture the scenes, stages and effects name (pictures/pic_main.cpp).
bool Generate_Pictures(const Context& ctx);

// An external command that makes `output` from `inputs`. The command runs under /bin/sh.
// A job whose command and input contents match a cached run takes the cached output instead.
struct Job {
  std::string command;
  std::vector<fs::path> inputs;
  fs::path output;
};
// Runs the jobs, several at a time; stops at the first failure after printing its command
// and output. Returns true when every output exists.
bool Run_Jobs(const Context& ctx, const std::vector<Job>& jobs);

// True when the program `name` is on the PATH; otherwise prints which Debian package to
// install and returns false.
bool Require_Tool(const char* name, const char* package);

// Quotes a string for /bin/sh.
std::string Shell_Quote(const std::string& s);

// Writes `bytes` to `path`; false after printing an error naming the file.
bool Write_File(const fs::path& path, const std::string& bytes);
// Reads the whole file; false after printing an error naming the file.
bool Read_File(const fs::path& path, std::string* bytes);

}  // namespace gen
