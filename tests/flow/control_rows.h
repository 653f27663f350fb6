// The controls of a form as rows of text, so that a whole table of controls compares in one go.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "flow/stage/form.h"

namespace brolgan::test {

inline std::string kindOf(const ControlEntry& entry) {
  static const char* const kKinds[] = {"label",   "text box",  "button",   "option", "frame",
                                       "picture", "combo box", "list box", "player"};
  return kKinds[entry.control.index()];
}

inline std::string textOf(const ControlEntry& entry) {
  return std::visit(
      [](const auto* control) -> std::string {
        if constexpr (requires { control->Caption; }) return control->Caption;
        if constexpr (requires { std::string(control->Text); }) return control->Text;
        return {};
      },
      entry.control);
}

inline std::string remarkOf(const ControlEntry& entry) {
  return std::visit(
      [](const auto* control) {
        std::string remark;
        if constexpr (requires { control->Visible; }) remark += control->Visible ? "" : ", hidden";
        if constexpr (requires { control->Enabled; }) remark += control->Enabled ? "" : ", disabled";
        if constexpr (requires { control->Locked; }) remark += control->Locked ? ", locked" : "";
        if constexpr (requires { control->MultiLine; }) remark += control->MultiLine ? ", several lines" : "";
        return remark;
      },
      entry.control);
}

// One row a control, as "Start: button 'Zacznij', disabled"; sorted.
inline std::vector<std::string> controlRows(Form& form) {
  std::vector<std::string> rows;
  for (const ControlEntry& entry : form.controls().entries()) {
    rows.push_back(entry.fullName() + ": " + kindOf(entry) + " '" + textOf(entry) + "'" + remarkOf(entry));
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

inline std::vector<std::string> sorted(std::vector<std::string> rows) {
  std::sort(rows.begin(), rows.end());
  return rows;
}

// Rows of an array of controls that have these texts, from index 0 on.
inline void addRows(std::vector<std::string>& rows, const std::string& name, const std::string& kind,
                    const std::vector<std::string>& texts) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    rows.push_back(name + "(" + std::to_string(i) + "): " + kind + " '" + texts[i] + "'");
  }
}

}  // namespace brolgan::test
