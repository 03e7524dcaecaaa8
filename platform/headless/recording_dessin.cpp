#include "headless/recording_dessin.hpp"

#include <algorithm>
#include <type_traits>

namespace ferlan::headless {

std::string Describe(const DessinCall& call) {
  std::string s = call.name;
  for (const Variant& v : call.args) {
    s += ' ';
    std::visit(
        [&s](const auto& x) {
          using T = std::decay_t<decltype(x)>;
          if constexpr (std::is_same_v<T, String>) {
            s += '"' + ToUtf8(x) + '"';
          } else if constexpr (std::is_same_v<T, Boolean>) {
            s += x ? "True" : "False";
          } else if constexpr (std::is_arithmetic_v<T>) {
            s += ToUtf8(NumberText(static_cast<Double>(x)));
          } else {
            s += "?";
          }
        },
        v);
  }
  return s;
}

RecordingDessin::RecordingDessin(std::shared_ptr<Dessin> inner) : inner_(std::move(inner)) {
  if (!inner_) throw PlatformError::ObjectNotSet();
}

std::vector<DessinCall> RecordingDessin::TakeLog() {
  std::vector<DessinCall> taken;
  taken.reserve(count_);
  for (std::size_t i = 0; i < count_; ++i) taken.push_back(ToCall(slots_[(head_ + i) % slots_.size()]));
  // The slots stay, with their texts' room, for the calls to come; the
  // room of a long text does not.
  for (Entry& entry : slots_) {
    for (String& text : entry.texts) {
      if (text.capacity() > kKeptRoom) String().swap(text);
    }
  }
  head_ = 0;
  count_ = 0;
  dropped_ = 0;
  text_units_ = 0;
  return taken;
}

std::string RecordingDessin::TakeLogText() {
  std::string text;
  for (const DessinCall& call : TakeLog()) text += Describe(call) + "\n";
  return text;
}

RecordingDessin::Entry& RecordingDessin::GrowOrTurn() {
  if (count_ == kLogLimit) {
    Entry& oldest = slots_[head_];
    text_units_ -= oldest.TextUnits();
    head_ = (head_ + 1) % kLogLimit;
    ++dropped_;
    return oldest;
  }
  // Full below the limit after long texts were dropped: the oldest call
  // moves to the front, so the new slot comes after the newest.
  std::rotate(slots_.begin(), slots_.begin() + static_cast<std::ptrdiff_t>(head_), slots_.end());
  head_ = 0;
  slots_.emplace_back();
  return slots_[count_++];
}

void RecordingDessin::DropLongTexts() {
  while (text_units_ > kTextLimit / 4 * 3 && count_ > 1) {
    Entry& oldest = slots_[head_];
    text_units_ -= oldest.TextUnits();
    for (String& text : oldest.texts) {
      if (text.capacity() > kKeptRoom) String().swap(text);
    }
    oldest.text_count = 0;
    head_ = (head_ + 1) % slots_.size();
    --count_;
    ++dropped_;
  }
}

DessinCall RecordingDessin::ToCall(const Entry& entry) {
  DessinCall call{entry.name, {}};
  call.args.reserve(entry.count);
  std::size_t text = 0;
  for (std::size_t i = 0; i < entry.count; ++i) {
    const Arg& arg = entry.args[i];
    switch (arg.kind) {
      case Arg::Kind::Single:
        call.args.emplace_back(arg.single);
        break;
      case Arg::Kind::Long:
        call.args.emplace_back(arg.long_value);
        break;
      case Arg::Kind::Boolean:
        call.args.emplace_back(arg.boolean);
        break;
      case Arg::Kind::Text:
        call.args.emplace_back(entry.texts[text++]);
        break;
    }
  }
  return call;
}

// Each call is recorded before it is passed on, so a call that fails is in
// the log too.
Single RecordingDessin::TaillePolice(PictureBox& Zone) {
  Record("TaillePolice");
  return inner_->TaillePolice(Zone);
}

void RecordingDessin::Texte(PictureBox& Zone, Single X, Single Y, const String& Mes, Long Coul) {
  Record("Texte", X, Y, Mes, Coul);
  inner_->Texte(Zone, X, Y, Mes, Coul);
}

void RecordingDessin::LigneV(PictureBox& Zone, Single X, Single Y1, Single Y2, Long Coul) {
  Record("LigneV", X, Y1, Y2, Coul);
  inner_->LigneV(Zone, X, Y1, Y2, Coul);
}

void RecordingDessin::Pave(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2,
                           Long Coul) {
  Record("Pave", X1, Y1, X2, Y2, Coul);
  inner_->Pave(Zone, X1, Y1, X2, Y2, Coul);
}

void RecordingDessin::EffaceRect(PictureBox& Zone, Single X1, Single Y1, Single X2, Single Y2,
                                 Long Coul) {
  Record("EffaceRect", X1, Y1, X2, Y2, Coul);
  inner_->EffaceRect(Zone, X1, Y1, X2, Y2, Coul);
}

void RecordingDessin::Rectangle(PictureBox& Zone, Long Coul, Single Y, Single X, Single Largeur,
                                Single Hauteur) {
  Record("Rectangle", Coul, Y, X, Largeur, Hauteur);
  inner_->Rectangle(Zone, Coul, Y, X, Largeur, Hauteur);
}

void RecordingDessin::Cadre3D(PictureBox& Zone, Long CoulFond, Long Coul, const String& Texte,
                              Single Y, Single X, Single Largeur, Single Hauteur,
                              const String& Style, Long N, const String& Align) {
  Record("Cadre3D", CoulFond, Coul, Texte, Y, X, Largeur, Hauteur, Style, N, Align);
  inner_->Cadre3D(Zone, CoulFond, Coul, Texte, Y, X, Largeur, Hauteur, Style, N, Align);
}

void RecordingDessin::Efface(PictureBox& Zone) {
  Record("Efface");
  inner_->Efface(Zone);
}

void RecordingDessin::Reduit(PictureBox& Zone) {
  Record("Reduit");
  inner_->Reduit(Zone);
}

void RecordingDessin::Recadre(Form& F) {
  Record("Recadre");
  inner_->Recadre(F);
}

void RecordingDessin::Hauteur(PictureBox& Zone, Single H, Boolean QueSiInf) {
  Record("Hauteur", H, QueSiInf);
  inner_->Hauteur(Zone, H, QueSiInf);
}

void RecordingDessin::Largeur(PictureBox& Zone, Single W, Boolean QueSiInf) {
  Record("Largeur", W, QueSiInf);
  inner_->Largeur(Zone, W, QueSiInf);
}

void RecordingDessin::MemImage(PictureBox& Zone) {
  Record("MemImage");
  inner_->MemImage(Zone);
}

void RecordingDessin::ResImage(PictureBox& Zone) {
  Record("ResImage");
  inner_->ResImage(Zone);
}

}  // namespace ferlan::headless
