// External tool jobs: run in parallel, with their outputs cached by command and inputs.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "assetgen.h"

extern char** environ;

namespace gen {

namespace {

std::uint64_t fnv1a(const std::string& s, std::uint64_t h = 1469598103934665603ull) {
  for (unsigned char c : s) h = (h ^ c) * 1099511628211ull;
  return h;
}

// Replaces every `from` in `text` with `to`.
std::string replace_all(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; !from.empty() && (at = text.find(from, at)) != std::string::npos;
       at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

// The key of a job: its command (with the run's own directories left out) and the contents
// of its inputs.
bool job_key(const Context& ctx, const Job& job, std::string* key) {
  std::string text = replace_all(job.command, ctx.work.string(), "@work");
  text = replace_all(text, ctx.out.string(), "@out");
  for (const fs::path& in : job.inputs) {
    std::string bytes;
    if (!Read_File(in, &bytes)) return false;
    text += '\0';
    text += bytes;
  }
  char hex[17];
  std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(fnv1a(text)));
  *key = std::string(hex) + "-" + std::to_string(text.size());
  return true;
}

struct Running {
  pid_t pid;
  std::size_t index;
  fs::path log;
  std::string key;
};

bool start(const Context& ctx, const Job& job, std::size_t index, Running* r) {
  r->index = index;
  r->log = ctx.work / ("job-" + std::to_string(index) + ".log");
  const std::string cmd = "exec >" + Shell_Quote(r->log.string()) + " 2>&1; " + job.command;
  const char* argv[] = {"/bin/sh", "-c", cmd.c_str(), nullptr};
  if (posix_spawn(&r->pid, "/bin/sh", nullptr, nullptr, const_cast<char**>(argv), environ) != 0) {
    std::fprintf(stderr, "assetgen: cannot start /bin/sh for: %s\n", job.command.c_str());
    return false;
  }
  return true;
}

bool finish(const Context& ctx, const Job& job, const Running& r, int status) {
  std::error_code ec;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || !fs::exists(job.output, ec)) {
    std::string log;
    Read_File(r.log, &log);
    std::fprintf(stderr, "assetgen: this command failed:\n  %s\n%s\n", job.command.c_str(),
                 log.c_str());
    return false;
  }
  if (!ctx.cache.empty() && !r.key.empty())
    fs::copy_file(job.output, ctx.cache / r.key, fs::copy_options::overwrite_existing, ec);
  return true;
}

// Takes a cached output when there is one; true when the job is done.
bool from_cache(const Context& ctx, const Job& job, const std::string& key) {
  if (ctx.cache.empty() || key.empty()) return false;
  std::error_code ec;
  const fs::path cached = ctx.cache / key;
  if (!fs::exists(cached, ec)) return false;
  fs::create_directories(job.output.parent_path(), ec);
  return fs::copy_file(cached, job.output, fs::copy_options::overwrite_existing, ec);
}

int parallel_jobs() {
  const long cores = sysconf(_SC_NPROCESSORS_ONLN);
  return cores < 1 ? 1 : cores > 4 ? 4 : static_cast<int>(cores);
}

}  // namespace

bool Run_Jobs(const Context& ctx, const std::vector<Job>& jobs) {
  std::vector<Running> running;
  std::size_t next = 0;
  bool ok = true;
  while (ok && (next < jobs.size() || !running.empty())) {
    while (ok && next < jobs.size() && static_cast<int>(running.size()) < parallel_jobs()) {
      Running r{};
      if (!job_key(ctx, jobs[next], &r.key)) return false;
      if (from_cache(ctx, jobs[next], r.key)) {
        ++next;
        continue;
      }
      ok = start(ctx, jobs[next], next, &r);
      if (ok) running.push_back(r);
      ++next;
    }
    if (running.empty()) continue;
    int status = 0;
    const pid_t pid = wait(&status);
    if (pid < 0) return false;
    for (std::size_t i = 0; i < running.size(); ++i) {
      if (running[i].pid != pid) continue;
      ok = finish(ctx, jobs[running[i].index], running[i], status) && ok;
      running.erase(running.begin() + static_cast<std::ptrdiff_t>(i));
      break;
    }
  }
  for (const Running& r : running) {  // after a failure: let the others end
    int status = 0;
    waitpid(r.pid, &status, 0);
  }
  return ok;
}

bool Require_Tool(const char* name, const char* package) {
  const std::string cmd = std::string("command -v ") + name + " >/dev/null 2>&1";
  if (std::system(cmd.c_str()) == 0) return true;
  std::fprintf(stderr, "assetgen: the program %s is missing (apt-get install %s)\n", name,
               package);
  return false;
}

std::string Shell_Quote(const std::string& s) {
  std::string q = "'";
  for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return q + "'";
}

bool Write_File(const fs::path& path, const std::string& bytes) {
  std::ofstream f(path, std::ios::binary);
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  f.close();
  if (!f) {
    std::fprintf(stderr, "assetgen: cannot write %s\n", path.c_str());
    return false;
  }
  return true;
}

bool Read_File(const fs::path& path, std::string* bytes) {
  std::ifstream f(path, std::ios::binary);
  if (!f) {
    std::fprintf(stderr, "assetgen: cannot read %s\n", path.c_str());
    return false;
  }
  std::ostringstream s;
  s << f.rdbuf();
  *bytes = s.str();
  return true;
}

}  // namespace gen
