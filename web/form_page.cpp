#include "web/form_page.h"

#include <algorithm>

#include "game/guide/inviting.h"
#include "game/guide/keys.h"
#include "game/guide/spoken.h"
#include "web/outside.h"
#include "web/page.h"

namespace brolgan::web {

namespace {

const char* nameOf(Colour colour) {
  switch (colour) {
    case Colour::red:
      return "red";
    case Colour::green:
      return "green";
    case Colour::purple:
      return "purple";
    case Colour::black:
      return "black";
    case Colour::buttonText:
      break;
  }
  return "plain";
}

void showPicture(const std::string& id, const std::string& name) {
  const PictureSize* const known = findPicture(name);
  page_picture(id.c_str(), name.c_str(), known == nullptr ? 0 : known->width, known == nullptr ? 0 : known->height);
}

// Lists tell by themselves what is chosen in them.
std::string spokenOf(const std::string& screen, const ControlEntry& entry) {
  const bool isList =
      std::holds_alternative<ComboBox*>(entry.control) || std::holds_alternative<ListBox*>(entry.control);
  return isList ? spokenName(screen, entry) : spoken(screen, entry);
}

// Tells the browser what differs between a control and its element.
class Mirror {
 public:
  Mirror(std::string id, Shown& shown) : id_(std::move(id)), shown_(shown) {}

  void operator()(const Label* label) const {
    text(label->Caption);
    colour(label->ForeColor);
    tip(label->ToolTipText);
  }
  void operator()(const TextBox* box) const {
    text(box->Text);
    set(shown_.isLocked, box->Locked, page_locked);
    if (update(shown_.isTabStop, box->TabStop)) page_skipped(id_.c_str(), !box->TabStop);
  }
  void operator()(const CommandButton* button) const {
    if (*button->Picture == '\0') text(button->Caption);
    picture(button->Picture);
  }
  void operator()(const OptionButton* option) const {
    text(option->Caption);
    set(shown_.isChosen, option->Value, page_checked);
    tip(option->ToolTipText);
  }
  void operator()(const Frame* frame) const { text(frame->Caption); }
  void operator()(const PictureBox* box) const { picture(box->Picture); }
  void operator()(const ComboBox* list) const { rows(*list); }
  void operator()(const ListBox* list) const { rows(*list); }
  void operator()(const MediaPlayer*) const {}

  void state(const ControlEntry& entry) const {
    const auto mirror = [this](const auto* control) {
      if constexpr (requires { control->Visible; }) {
        if (update(shown_.isVisible, control->Visible)) page_hidden(id_.c_str(), !control->Visible);
      }
      if constexpr (requires { control->Enabled; }) {
        if (update(shown_.isEnabled, control->Enabled)) page_disabled(id_.c_str(), !control->Enabled);
      }
    };
    std::visit(mirror, entry.control);
  }
  void voice(const std::string& screen, const ControlEntry& entry) const {
    const std::string words = spokenOf(screen, entry);
    if (update(shown_.spoken, words)) page_spoken(id_.c_str(), words.c_str());
    if (isCheckable(screen, entry)) set(shown_.isChosen, isChecked(entry), page_checked);
  }
  void dim(bool wanted) const { set(shown_.isDimmed, wanted, page_dimmed); }
  void invite(bool wanted) const { set(shown_.isInviting, wanted, page_inviting); }

 private:
  template <class Value, class Wanted>
  static bool update(Value& shown, const Wanted& wanted) {
    if (shown == wanted) return false;
    shown = wanted;
    return true;
  }
  void set(bool& shown, bool wanted, void (*tell)(const char*, bool)) const {
    if (update(shown, wanted)) tell(id_.c_str(), wanted);
  }
  void text(const std::string& wanted) const {
    if (update(shown_.text, wanted)) page_text(id_.c_str(), wanted.c_str());
  }
  void colour(Colour wanted) const {
    if (update(shown_.colour, wanted)) page_colour(id_.c_str(), nameOf(wanted));
  }
  void tip(const char* wanted) const {
    if (update(shown_.tip, wanted)) page_tip(id_.c_str(), wanted);
  }
  void picture(const std::string& wanted) const {
    if (update(shown_.picture, wanted)) showPicture(id_, wanted);
  }
  void rows(const Rows& list) const {
    std::vector<std::string> wanted;
    wanted.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int i = 0; i < list.ListCount(); ++i) wanted.push_back(list.List(i));
    const bool isNew = update(shown_.rows, wanted);
    if (isNew) {
      page_clear(id_.c_str());
      for (const std::string& row : wanted) page_row(id_.c_str(), row.c_str());
      shown_.isHeaded = false;
    }
    if (update(shown_.selected, list.ListIndex()) || isNew) page_selected(id_.c_str(), list.ListIndex());
  }

  std::string id_;
  Shown& shown_;
};

}  // namespace

void FormPage::bind(Form& form) {
  form_ = &form;
  focused_.clear();
  news_ = {};
  page_refresh(name_.c_str());
  const auto& entries = form.controls().entries();
  if (!shown_.empty()) return;
  shown_.resize(entries.size());
  for (const ControlEntry& entry : entries) {
    const char key = accessKey(name_, entry);
    if (key != '\0') page_key(idOf(entry.fullName()).c_str(), key);
  }
}

void FormPage::prepare(Form& fresh) {
  bind(fresh);
  mirror();
  release();
  page_ready(name_.c_str());
}

void FormPage::mirrorAll() {
  mirror();
  tellNews();
}

void FormPage::mirror() {
  if (title_ != form_->Caption) {
    title_ = form_->Caption;
    page_title(name_.c_str(), title_.c_str());
  }
  const bool isDim = isGroupGone(name_, *form_);
  const auto& entries = form_->controls().entries();
  const std::string step = invitedStep(name_, *form_);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (std::holds_alternative<MediaPlayer*>(entries[i].control)) continue;
    const Mirror mirror(idOf(entries[i].fullName()), shown_[i]);
    std::visit(mirror, entries[i].control);
    mirror.state(entries[i]);
    mirror.voice(name_, entries[i]);
    mirror.invite(isInviting(name_, *form_, entries[i], step));
    if (entries[i].name == kMonsterPicture) mirror.dim(isDim);
  }
  if (const auto* const sheet = dynamic_cast<const FHero*>(form_)) showHeads(*sheet);
}

// The monsters that are beaten are known by their heads.
void FormPage::showHeads(const FHero& sheet) {
  const auto& entries = form_->controls().entries();
  const auto isList = [&](const ControlEntry& entry) { return entry.name == "Stwory"; };
  const auto list = std::find_if(entries.begin(), entries.end(), isList);
  Shown& shown = shown_.at(static_cast<std::size_t>(list - entries.begin()));
  if (shown.isHeaded) return;
  for (int row = 0; row < static_cast<int>(shown.rows.size()); ++row) {
    page_head(idOf(list->fullName()).c_str(), row, sheet.pictureOfKill(row).c_str());
  }
  shown.isHeaded = true;
}

// What happens is heard and felt; the monster answers a blow.
void FormPage::tellNews() {
  for (const std::string& report : news_.take(name_, *form_)) {
    const ControlEntry& entry = form_->controls().find(report);
    const std::string words = spoken(name_, entry);
    page_news(idOf(report).c_str(), words.empty() ? std::get<Label*>(entry.control)->Caption.c_str() : words.c_str());
    if (isBlowDealt(report)) page_flinch(idOf(kMonsterPicture).c_str());
  }
}

void FormPage::expectNews(const std::string& used) { news_.expect(name_, *form_, used); }

void FormPage::focusOn(const std::string& control) const {
  page_focus(name_.c_str(), control.empty() ? "" : idOf(control).c_str());
}

void FormPage::setShown(bool shown) {
  if (isShown_ == shown) return;
  isShown_ = shown;
  page_show(name_.c_str(), shown);
}

}  // namespace brolgan::web
