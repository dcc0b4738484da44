// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runs/setting.h"
#include "web/json.h"

namespace kaldo {

/// The settings that the form of a run offers, as far as the command line has them, with what is
/// in them and whether they play a role beside the others: {"key", "option", "metavar", "group",
/// "help", "flag", "alone", "applies", "choices", "text", "shown"}.
template <typename Settings>
Json FormJson(SettingTable<Settings> table, const Settings& settings) {
  Json form = Json::array();
  const Settings defaults;
  for (const Setting<Settings>& setting : table) {
    if (setting.option.empty()) {
      continue;
    }
    Json choices = Json::array();
    for (const std::string_view choice : setting.value.choices) {
      choices.push_back(std::string(choice));
    }
    const auto text = setting.needed ? std::nullopt : setting.value.text(defaults);
    form.push_back({{"key", setting.key},
                    {"option", setting.option},
                    {"metavar", setting.metavar},
                    {"group", setting.group},
                    {"help", setting.help},
                    {"flag", setting.IsFlag()},
                    {"alone", setting.may_stand_alone},
                    {"required", setting.MustBeGiven()},
                    {"applies", setting.Applies(settings)},
                    {"choices", std::move(choices)},
                    {"text", text ? Json(*text) : Json()},
                    {"shown", setting.first_shown ? Json(*setting.first_shown) : Json()}});
  }
  return form;
}

/// The settings as they would be typed; what is as it is by default is left out.
template <typename Settings>
TypedSettings TypedFrom(SettingTable<Settings> table, const Settings& settings) {
  TypedSettings typed;
  const Settings defaults;
  for (const Setting<Settings>& setting : table) {
    const auto text = setting.value.text(settings);
    const bool is_told = setting.needed || text != setting.value.text(defaults);
    if (!setting.option.empty() && setting.Applies(settings) && text && is_told) {
      typed[setting.key] = *text;
    }
  }
  return typed;
}

/// The options of `kaldo import`, in the same form.
Json ImportFormJson();

}  // namespace kaldo
