// Late-bound members of the environment. One table names every member and the
// field of EnvState behind it; GetProperty and SetProperty both read it, so a
// member added to the table is reachable both ways at once.
#include "kit/env.hpp"

#include <algorithm>
#include <array>
#include <type_traits>
#include <variant>

namespace ferlan::kit {

namespace {

using Field = std::variant<Integer EnvState::*, Long EnvState::*, Single EnvState::*,
                           Boolean EnvState::*, String EnvState::*, FormRef EnvState::*,
                           PictureBoxRef EnvState::*>;

struct Member {
  std::string_view name;
  Field field;
};

const std::array kMembers = {
    Member{"KyF", &EnvState::form},
    Member{"ZoneAff", &EnvState::surface},
#define FERLAN_ENV_NAME(type, name, access, initial) Member{#name, &EnvState::name},
    FERLAN_ENV_MEMBERS(FERLAN_ENV_NAME)
#undef FERLAN_ENV_NAME
    // Not members of the component's Env: what Entete.Texte and
    // Fenetres.Active give, settable by name like the rest.
    Member{"EnteteTexte", &EnvState::EnteteTexte},
    Member{"FenetreActive", &EnvState::active_window},
};

const Member& Find(std::string_view name) {
  for (const Member& m : kMembers) {
    if (SameName(m.name, name)) return m;
  }
  throw PlatformError::MemberNotSupported(name);
}

}  // namespace

Env::Env(std::shared_ptr<EnvState> state) : state_(std::move(state)) {}

Variant Env::GetProperty(std::string_view name) {
  EnvState& s = *state_;
  return std::visit(
      [&s](auto field) -> Variant {
        const auto& value = s.*field;
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, FormRef> || std::is_same_v<T, PictureBoxRef>) {
          return ObjectRef(value);
        } else {
          return value;
        }
      },
      Find(name).field);
}

void Env::SetProperty(std::string_view name, const Variant& value) {
  EnvState& s = *state_;
  std::visit(
      [&s, &value](auto field) {
        auto& target = s.*field;
        target = VariantTo<std::decay_t<decltype(target)>>(value);
      },
      Find(name).field);
}

std::vector<std::string_view> EnvPropertyNames() {
  std::vector<std::string_view> names;
  for (const Member& m : kMembers) names.push_back(m.name);
  return names;
}

}  // namespace ferlan::kit
