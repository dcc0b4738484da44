// SPDX-License-Identifier: GPL-3.0-or-later
// The program as the script around it calls it, and what it calls there: plain C functions.
#include <string>
#include <string_view>

#include "web/page_session.h"

extern "C" {

/// Of the script: a part of the run begins, with so many steps.
void KaldoBeginsPart(const char* name, double steps);

/// Of the script: where in the part the run is, in words.
void KaldoIsAt(const char* note);

/// Of the script: so many steps of the part are done.
void KaldoDoesSteps(double steps);

/// Of the script: a sentence that stays to be read.
void KaldoTells(const char* sentence);
}

namespace kaldo {

namespace {

/// One thread computes. A run ends early when the page ends its program.
class PageObserver final : public RunObserver {
 public:
  void OnPart(std::string_view name, std::uint64_t steps) override {
    KaldoBeginsPart(std::string(name).c_str(), static_cast<double>(steps));
  }
  void OnNote(std::string_view note) override { KaldoIsAt(std::string(note).c_str()); }
  void OnSteps(std::uint64_t steps) override { KaldoDoesSteps(static_cast<double>(steps)); }
  void OnMessage(RunMessage /*kind*/, std::string_view sentence) override {
    KaldoTells(std::string(sentence).c_str());
  }
};

}  // namespace

}  // namespace kaldo

/// The answer to a request, until the next one.
extern "C" const char* KaldoAnswer(const char* request) {
  static kaldo::PageSession session;
  static std::string answer;
  kaldo::PageObserver observer;
  answer = session.Answer(request, observer);
  return answer.c_str();
}
