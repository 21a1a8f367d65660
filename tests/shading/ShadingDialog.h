// The relief shading dialog as its tests open and edit it.
#pragma once

#include <string>
#include <vector>

#include "griddialogs/frmDataShade.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"
#include "tests/support/RecordedGrid.h"

namespace orx::test {

using Calls = std::vector<std::string>;

/// What OK writes when everything was changed. The first index is put right behind the user's own.
inline const Calls kAllWrites = {"ShadeVersion=",      "Altitude=",       "Azimuth=",      "CombineColors=",
                                 "MinIntensity=",      "MidIntensity=",   "MaxIntensity=", "AltitudeDefault=",
                                 "MidIndexAutomatic=", "NrOfShades=",     "ShadeCount=",   "FirstShadeIndex=",
                                 "FirstShadeIndex=",   "ScaleAutomatic=", "ScaleFactor=",  "ScaleMultiplier="};

class Shading : public DesktopTest {
 protected:
  template <class Acts>
  bool Edit(Acts acts) {
    script.ExpectForm("frmDataShade", [this, acts](Form& shown) {
      form = dynamic_cast<frmDataShade*>(&shown);
      shade.Log.Calls.clear();
      acts();
      if (form->Visible()) user.Click(form->cmdOK);
      form = nullptr;
    });
    return modMain::ShowShadeDialog(desktop(), &shade, changed, language);
  }
  std::string Seen(Control& control) { return user.See(control).Text; }
  void Cancel() { user.Click(form->cmdCancel); }
  void ExpectRefused(const Message& message, TextBox& field) {
    script.ExpectMessage(message);
    user.Click(form->cmdOK);
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(user.See(field).Focused) << field.Name();
    EXPECT_EQ(Calls{}, WritesIn(shade.Log)) << field.Name();
  }
  Calls WritesBesidesCount() {
    Calls writes = WritesIn(shade.Log);
    std::erase(writes, "ShadeCount=");
    return writes;
  }

  /// Changes every setting there is, and OK.
  bool EditEverything() {
    return Edit([this] {
      user.Choose(form->cmbShadeVersion, 0);
      user.Type(form->txtAltitude, "50");
      user.Type(form->txtAzimuth, "10");
      user.Choose(form->cmbCombine, 2);
      user.Type(form->txtMinIntensity, "30");
      user.Type(form->txtNrOfShades, "99");
      user.Type(form->txtFirstShadeIndex, "3");
      user.Choose(form->cmbShadeVersion, 1);
      user.Type(form->txtIntensityMid, "90");
      user.Type(form->txtIntensityMax, "110");
      user.Type(form->txtAltitudeDefault, "20");
      user.Toggle(form->chkMidIndexAutomatic);
      user.Toggle(form->chkScaleAutomatic);
      user.Type(form->txtScaleFactor, "0.5");
      user.Type(form->txtScaleMultiplier, "4");
    });
  }
  /// The settings that EditEverything changes, so that it can change them again.
  void PutBack() {
    shade.HeldShadeVersion = shadeversion::kDarkening;
    shade.HeldAltitude = 45;
    shade.HeldAzimuth = 315;
    shade.HeldCombineColors = 1;
    shade.HeldMinIntensity = 40.5;
    shade.HeldMidIntensity = 100;
    shade.HeldMaxIntensity = 150;
    shade.HeldAltitudeDefault = 35;
    shade.HeldMidIndexAutomatic = true;
    shade.HeldNrOfShades = 200;
    shade.HeldFirstShadeIndex = 1;
    shade.HeldScaleAutomatic = false;
    shade.HeldScaleFactor = 1;
    shade.HeldScaleMultiplier = 2;
  }

  RecordedShade shade;
  bool changed = false;
  ILanguage* language = nullptr;
  frmDataShade* form = nullptr;
};

}  // namespace orx::test
