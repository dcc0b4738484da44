// SPDX-License-Identifier: GPL-3.0-or-later

// A disk that fails: loaded in front of the system's library (LD_PRELOAD) it counts what a program
// changes below a folder, and has one of these changes fail, or kills the program before it.
//
//   KALDO_DISK_BELOW    the folder, an absolute path
//   KALDO_DISK_AT       which change, counted from 1; 0 or beyond the last: none
//   KALDO_DISK_EVENT    "kill", or the name of an error: ENOSPC, EIO, EACCES
//   KALDO_DISK_LOG      a file that gets a line for each change
//   KALDO_DISK_LOCKS    "none": no file can be locked
//   KALDO_DISK_THREADS  "none": no thread can be started

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>

namespace {

std::string_view Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

template <typename Function>
Function* System(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

int ErrorNamed(std::string_view name) {
  return name == "ENOSPC" ? ENOSPC : name == "EACCES" ? EACCES : EIO;
}

std::string LinkOf(const std::string& link) {
  std::array<char, PATH_MAX> target{};
  const ssize_t size = ::readlink(link.c_str(), target.data(), target.size());
  return {target.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
}

std::string PathOfFile(int file) { return LinkOf("/proc/self/fd/" + std::to_string(file)); }

std::string FullPath(int folder, const char* path) {
  if (path[0] == '/') {
    return path;
  }
  return (folder == AT_FDCWD ? LinkOf("/proc/self/cwd") : PathOfFile(folder)) + '/' + path;
}

void Log(const char* what, const std::string& path) {
  const std::string log(Variable("KALDO_DISK_LOG"));
  if (log.empty()) {
    return;
  }
  const std::string line = std::string(what) + ' ' + path + '\n';
  const int file =
      System<int(const char*, int, ...)>("open")(log.c_str(), O_WRONLY | O_APPEND | O_CREAT, 0666);
  [[maybe_unused]] const ssize_t written =
      System<ssize_t(int, const void*, size_t)>("write")(file, line.data(), line.size());
  ::close(file);
}

std::atomic<int> changes{0};

/// True when this change is the one to fail; errno then says how.
bool Fails(const char* what, const std::string& path) {
  const std::string_view folder = Variable("KALDO_DISK_BELOW");
  if (folder.empty() || !path.starts_with(folder)) {
    return false;
  }
  Log(what, path);
  if (++changes != std::atoi(std::string(Variable("KALDO_DISK_AT")).c_str())) {
    return false;
  }
  if (Variable("KALDO_DISK_EVENT") == "kill") {
    ::kill(::getpid(), SIGKILL);
  }
  errno = ErrorNamed(Variable("KALDO_DISK_EVENT"));
  return true;
}

bool IsForWriting(int flags) { return (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0; }

int Open(const char* name, int folder, const char* path, int flags, mode_t mode) {
  if (IsForWriting(flags) && Fails("open", FullPath(folder, path))) {
    return -1;
  }
  return System<int(int, const char*, int, ...)>(name)(folder, path, flags, mode);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  return Open("openat", AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list more;
  va_start(more, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  return Open("openat64", AT_FDCWD, path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
  if (Fails("write", PathOfFile(file))) {
    return -1;
  }
  return System<ssize_t(int, const void*, size_t)>("write")(file, bytes, size);
}

int fsync(int file) {
  return Fails("fsync", PathOfFile(file)) ? -1 : System<int(int)>("fsync")(file);
}

int rename(const char* from, const char* to) {
  return Fails("rename", FullPath(AT_FDCWD, to))
             ? -1
             : System<int(const char*, const char*)>("rename")(from, to);
}

int unlink(const char* path) {
  return Fails("unlink", FullPath(AT_FDCWD, path)) ? -1 : System<int(const char*)>("unlink")(path);
}

int unlinkat(int folder, const char* path, int flags) {
  return Fails("unlink", FullPath(folder, path))
             ? -1
             : System<int(int, const char*, int)>("unlinkat")(folder, path, flags);
}

int remove(const char* path) {
  return Fails("unlink", FullPath(AT_FDCWD, path)) ? -1 : System<int(const char*)>("remove")(path);
}

int rmdir(const char* path) {
  return Fails("rmdir", FullPath(AT_FDCWD, path)) ? -1 : System<int(const char*)>("rmdir")(path);
}

int mkdir(const char* path, mode_t mode) {
  return Fails("mkdir", FullPath(AT_FDCWD, path))
             ? -1
             : System<int(const char*, mode_t)>("mkdir")(path, mode);
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"  // the name is that of a struct, too
int flock(int file, int operation) {       // NOLINT(readability-identifier-naming)
  if (Variable("KALDO_DISK_LOCKS") == "none") {
    errno = ENOLCK;
    return -1;
  }
  return System<int(int, int)>("flock")(file, operation);
}
#pragma GCC diagnostic pop

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*work)(void*),
                   void* argument) {
  if (Variable("KALDO_DISK_THREADS") == "none") {
    return EAGAIN;
  }
  return System<int(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create")(
      thread, attributes, work, argument);
}

}  // extern "C"
