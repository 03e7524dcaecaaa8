// A Dessin that writes down every call before passing it on: the drawing log
// of tests and of `ferlan automate` ({"log":true}). A record holds the
// operation's name and its numbers and texts in the order of the call,
// without the surface or form it was given.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "ferlan/host.hpp"
#include "ferlan/export.hpp"

FERLAN_PUBLIC_BEGIN

namespace ferlan::headless {

struct DessinCall {
  std::string name;           // "EffaceRect"
  std::vector<Variant> args;  // Single, Long, Boolean or String
  friend bool operator==(const DessinCall&, const DessinCall&) = default;
};

// "EffaceRect 105 312 1105 506 -1", texts in double quotes, Booleans as
// True and False.
std::string Describe(const DessinCall& call);

class RecordingDessin final : public Dessin {
 public:
  // Pre: `inner` is not null.
  explicit RecordingDessin(std::shared_ptr<Dessin> inner);

  // The log keeps the latest kLogLimit calls; older ones are dropped and
  // counted, so a session whose log is never read stays flat.
  static constexpr std::size_t kLogLimit = 10000;
  // UTF-16 units of text the log keeps at most, however long the texts:
  // past it the oldest calls go too, down to three quarters of it (the
  // latest call always stays), and are counted with the others.
  static constexpr std::size_t kTextLimit = std::size_t{1} << 22;

  // The calls since the last TakeLog, which forgets them.
  std::vector<DessinCall> TakeLog();
  // The same, one Describe line each, each ending in a newline.
  std::string TakeLogText();
  // Calls dropped from the log since the last TakeLog (cleared by it; read
  // it first).
  std::size_t Dropped() const { return dropped_; }

  Single TaillePolice(PictureBox& Zone) override;
  void Texte(PictureBox& Zone, Single X, Single Y, const String& Mes, Long Coul) override;
  void LigneV(PictureBox& Zone, Single X, Single Y1, Single Y2, Long Coul) override;
  void Pave(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2, Long Coul) override;
  void EffaceRect(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2,
                  Long Coul) override;
  void Rectangle(PictureBox& Zone, Long Coul, Single Y, Single X, Single Largeur,
                 Single Hauteur) override;
  void Cadre3D(PictureBox& Zone, Long CoulFond, Long Coul, const String& Texte, Single Y,
               Single X, Single Largeur, Single Hauteur, const String& Style, Long N,
               const String& Align) override;
  void Efface(PictureBox& Zone) override;
  void Reduit(PictureBox& Zone) override;
  void Recadre(Form& F) override;
  void Hauteur(PictureBox& Zone, Single H, Boolean QueSiInf) override;
  void Largeur(PictureBox& Zone, Single W, Boolean QueSiInf) override;
  void MemImage(PictureBox& Zone) override;
  void ResImage(PictureBox& Zone) override;

  Variant GetProperty(std::string_view name) override { return inner_->GetProperty(name); }
  void SetProperty(std::string_view name, const Variant& value) override {
    inner_->SetProperty(name, value);
  }

 private:
  // A call as it is kept until TakeLog: the name is a literal, numbers and
  // Booleans sit in place, texts are copied into strings that the slot keeps
  // from one use to the next. A call costs no allocation once the slots and
  // their texts have grown.
  struct Arg {
    enum class Kind : unsigned char { Single, Long, Boolean, Text };
    Kind kind = Kind::Single;
    union {
      Single single = 0;
      Long long_value;
      Boolean boolean;
    };
  };
  struct Entry {
    static constexpr std::size_t kMaxArgs = 10;  // Cadre3D
    static constexpr std::size_t kMaxTexts = 3;
    const char* name = "";
    std::size_t count = 0;
    std::size_t text_count = 0;
    std::array<Arg, kMaxArgs> args{};
    std::array<String, kMaxTexts> texts;

    void Put(Single v) {
      Arg& arg = args[count++];
      arg.kind = Arg::Kind::Single;
      arg.single = v;
    }
    void Put(Long v) {
      Arg& arg = args[count++];
      arg.kind = Arg::Kind::Long;
      arg.long_value = v;
    }
    void Put(Boolean v) {
      Arg& arg = args[count++];
      arg.kind = Arg::Kind::Boolean;
      arg.boolean = v;
    }
    void Put(const String& v) {
      String& text = texts[text_count++];
      if (text.capacity() > kKeptRoom) {
        text = v;  // the room of a long text is not kept for the calls to come
      } else {
        text.assign(v);
      }
      args[count++].kind = Arg::Kind::Text;
    }
    std::size_t TextUnits() const {
      std::size_t units = 0;
      for (std::size_t i = 0; i < text_count; ++i) units += texts[i].size();
      return units;
    }
  };
  static constexpr std::size_t kKeptRoom = 1024;

  template <class... Args>
  void Record(const char* name, const Args&... args) {
    Entry& entry = NextEntry();
    entry.name = name;
    entry.count = 0;
    entry.text_count = 0;
    (entry.Put(args), ...);
    if constexpr ((std::is_same_v<Args, String> || ...)) {
      text_units_ += entry.TextUnits();
      if (text_units_ > kTextLimit) DropLongTexts();
    }
  }
  // The slot for the next call; when the log is full, the oldest one.
  Entry& NextEntry() {
    if (count_ < slots_.size()) {
      Entry& entry = slots_[(head_ + count_) % slots_.size()];
      ++count_;
      return entry;
    }
    return GrowOrTurn();
  }
  Entry& GrowOrTurn();
  // Drops the oldest calls till the texts kept are under their limit.
  void DropLongTexts();
  static DessinCall ToCall(const Entry& entry);

  std::shared_ptr<Dessin> inner_;
  // A ring of at most kLogLimit slots: head_ is the oldest of count_ calls.
  std::vector<Entry> slots_;
  std::size_t head_ = 0;
  std::size_t count_ = 0;
  std::size_t dropped_ = 0;
  std::size_t text_units_ = 0;  // of the count_ calls kept
};

}  // namespace ferlan::headless

FERLAN_PUBLIC_END
