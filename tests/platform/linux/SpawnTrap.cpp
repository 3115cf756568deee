// Replaces every libc entry point that starts a process with one that refuses and counts, so a
// test can prove that reading the system never runs a helper program. No system header is
// included here: the replacements only need the C names, and the headers' own declarations
// would clash with these definitions.

namespace {
int attempts = 0;
}  // namespace

extern "C" {

int brimlySpawnAttempts() {
  return attempts;
}
void brimlyResetSpawnAttempts() {
  attempts = 0;
}

int fork() {
  ++attempts;
  return -1;
}

int vfork() {
  ++attempts;
  return -1;
}

int posix_spawn(void*, const char*, const void*, const void*, char* const*, char* const*) {
  ++attempts;
  return 1;
}

int posix_spawnp(void*, const char*, const void*, const void*, char* const*, char* const*) {
  ++attempts;
  return 1;
}

void* popen(const char*, const char*) {
  ++attempts;
  return nullptr;
}

int system(const char*) {
  ++attempts;
  return -1;
}

int execve(const char*, char* const*, char* const*) {
  ++attempts;
  return -1;
}

int execv(const char*, char* const*) {
  ++attempts;
  return -1;
}

int execvp(const char*, char* const*) {
  ++attempts;
  return -1;
}

}  // extern "C"
