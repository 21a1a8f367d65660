// Small forms for what the sample form has not.
#pragma once

#include "tests/forms/SampleForm.h"

namespace orx::test {

/// A form with a log, a note and a drawing.
struct NoteForm final : Form {
  explicit NoteForm(Desktop& desktop) : Form(desktop, "frmNotes", {.Caption = "Notes", .Client = {6000, 6000}}) {}
  TextBox txtLog{*this, "txtLog", {.Place = {120, 120, 3000, 1200}}, TextLines::Multiple, true};
  TextBox txtNote{*this, "txtNote", {.Place = {120, 1500, 3000, 1200}}, TextLines::Multiple};
  Label lblPlain{*this, "lblPlain", {.Caption = "R && D <b>", .Place = {120, 3000, 3000, 300}}};
  PictureBox pctDrawing{*this, "pctDrawing", {.Place = {120, 3600, 1500, 1500}}};
};

/// A form that the user sizes.
struct ElasticForm final : Form {
  explicit ElasticForm(Desktop& desktop)
      : Form(desktop, "frmElastic", {.Client = {6000, 3000}, .Border = BorderStyle::Sizable}) {}
  void Form_Resize() override { Seen = ClientSize(); }
  Size Seen;
};

}  // namespace orx::test
