// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/import/import_offer.h"

#include <algorithm>

#include "app/base/file_field.h"
#include "app/base/opened_files.h"
#include "app/import/import_screen.h"

namespace kaldo {

void ImportOffer::Watch(FileField& field, Role role, Sex sex) {
  watched_.push_back({&field, role, sex});
  field.SetRecogniser(
      [this](const std::string& path) {
        const auto look = opened_.ForeignLookAt(path);
        return look ? std::optional(look->sentence) : std::nullopt;
      },
      [this] { Convert(); });
}

std::vector<ImportedFile> ImportOffer::Files() const {
  std::vector<ImportedFile> files;
  bool is_clear = true;
  for (const Watched& watched : watched_) {
    const std::string path = watched.field->Path();
    if (path.empty() || !watched.field->isVisibleTo(&screen_) || !opened_.ForeignLookAt(path)) {
      continue;
    }
    is_clear = is_clear && watched.role != Role::kUnknown;
    const auto same = std::find_if(files.begin(), files.end(),
                                   [&path](const auto& each) { return each.path == path; });
    if (same == files.end()) {
      files.push_back({path, watched.role, watched.sex});
    } else {
      same->sex = Sex::kUnknown;  // males and females in one file
      is_clear = is_clear && same->role == watched.role;
    }
  }
  const auto has = [&files](Role role) {
    return std::any_of(files.begin(), files.end(),
                       [role](const auto& each) { return each.role == role; });
  };
  if (!is_clear || !(need_.is_simulation || (has(Role::kParent) && has(Role::kOffspring)))) {
    for (ImportedFile& file : files) {
      file.role = need_.is_simulation ? Role::kParent : Role::kUnknown;
      file.sex = Sex::kUnknown;
    }
  }
  return files;
}

void ImportOffer::Convert() {
  ImportScreen import(&screen_, need_, Files(), opened_.Source());
  if (import.exec() == QDialog::Accepted) {
    on_imported_(import.Imported());
  }
}

}  // namespace kaldo
