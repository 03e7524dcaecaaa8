// Late-bound properties by name: one table per class, so that GetProperty and
// SetProperty of every forms object share one lookup instead of a switch
// statement each. Names compare without regard to case, as the platform's
// late binding does.
#pragma once

#include <functional>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::forms {

template <class T>
class PropertyTable {
 public:
  using Getter = std::function<Variant(T&)>;
  using Setter = std::function<void(T&, const Variant&)>;
  struct Entry {
    std::string_view name;
    Getter get;  // empty: write-only
    Setter set;  // empty: read-only
  };

  PropertyTable(std::initializer_list<Entry> own) : entries_(own) {}

  // The entries of a base class's table, then `own`; an own entry hides a
  // base entry of the same name because it is found first.
  template <class Base>
  PropertyTable(const PropertyTable<Base>& base, std::initializer_list<Entry> own)
      : entries_(own) {
    for (const auto& e : base.Entries()) {
      Entry wrapped{e.name, nullptr, nullptr};
      if (e.get) wrapped.get = [g = e.get](T& t) { return g(static_cast<Base&>(t)); };
      if (e.set) {
        wrapped.set = [s = e.set](T& t, const Variant& v) { s(static_cast<Base&>(t), v); };
      }
      entries_.push_back(std::move(wrapped));
    }
  }

  const std::vector<Entry>& Entries() const { return entries_; }

  // The entry of that name, or nullptr.
  const Entry* Find(std::string_view name) const {
    for (const Entry& e : entries_) {
      if (SameName(e.name, name)) return &e;
    }
    return nullptr;
  }

  // Errors: 438 when the class has no such readable property.
  Variant Get(T& object, std::string_view name) const {
    const Entry* e = Find(name);
    if (!e || !e->get) throw PlatformError::MemberNotSupported(name);
    return e->get(object);
  }

  // Errors: 438 when the class has no such writable property; a value of the
  // wrong type raises what its conversion raises (13, 6).
  void Set(T& object, std::string_view name, const Variant& value) const {
    const Entry* e = Find(name);
    if (!e || !e->set) throw PlatformError::MemberNotSupported(name);
    e->set(object, value);
  }

 private:
  std::vector<Entry> entries_;
};

}  // namespace ferlan::forms

FERLAN_PUBLIC_END
