
#include "qt/Appearance.h"
#include "qt/FormSweep.h"
#include "qt/SampleForm.h"
#include "qt/Text.h"

namespace fidaleon::qt::RenderingTest {

using namespace forms;

TEST(Rendering, SweepOfAFaultyForm_NamesTheFaults) {
  struct Faulty : Form {
    explicit Faulty(UserInterface& ui) : Form(ui, "frmMala") {
      setLayout(column({item(nameless), buttons({&ok, &twin})}));
    }
    TextBox nameless{*this, "txtSinNombre"};
    TextBox lost{*this, "txtPerdido", "Perdido"};
    Button ok{*this, "cmdUno", "&Aceptar"};
    Button twin{*this, "cmdDos", "&Añadir"};
  };
  ScriptedUser user;
  Faulty form(user);
  form.Load();
  const auto problems = sweep(form);
  EXPECT_THAT(problems, Contains(HasSubstr("«txtPerdido» has no widget")));
  EXPECT_THAT(problems, Contains(HasSubstr("«txtSinNombre» has no name")));
  EXPECT_THAT(problems, Contains(HasSubstr("share a mnemonic")));
}

TEST(Rendering, TallFormOnSmallScreen_PagesScrollAndTheFieldReachedIsSeen) {
  struct Tall : Form {
    explicit Tall(UserInterface& ui) : Form(ui, "frmAlta") {
      Nodes items;
      for (int i = 0; i < 40; ++i) {
        fields.push_back(std::make_unique<TextBox>(*this, "txt" + std::to_string(i), "Campo"));
        items.push_back(item(*fields.back()));
      }
      setLayout(column({forms::fields(1, std::move(items)), buttons({&ok})}));
    }
    std::vector<std::unique_ptr<TextBox>> fields;
    Button ok{*this, "cmdAceptar", "ACEPTAR"};
  };
  ScriptedUser user;
  Tall form(user);
  form.Load();
  EXPECT_THAT(sweep(form), IsEmpty());
  FormDialog dialog(form, nullptr, FormDialog::Use::Window, {1366, 768});
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  form.setFocus(*form.fields.back());
  QApplication::processEvents();
  for (const Control* control :
       {static_cast<Control*>(form.fields.back().get()), static_cast<Control*>(&form.ok)})
    EXPECT_FALSE(dialog.fieldOf(*control)->visibleRegion().isEmpty()) << control->name();
}

TEST(Rendering, SmallScreen_FieldsStandBelowEachOtherInsteadOfScrollingSideways) {
  ScriptedUser user;
  SampleForm form(user);
  form.Load();
  for (const auto& [room, beside] : {std::pair(QSize(1366, 768), true), {QSize(380, 768), false}}) {
    FormDialog dialog(form, nullptr, FormDialog::Use::Picture, room);
    dialog.show();
    const auto top = [&](const Control& field) {
      return dialog.fieldOf(field)->mapTo(&dialog, QPoint()).y();
    };
    EXPECT_EQ(top(form.surname1) == top(form.surname2), beside) << room.width();
  }
}

TEST(Rendering, DisabledAndWarningTexts_StandOutFromTheirGround) {
  const auto contrast = [](QColor a, QColor b) {
    const auto light = [](QColor c) {
      const auto part = [](double v) {
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
      };
      return 0.2126 * part(c.redF()) + 0.7152 * part(c.greenF()) + 0.0722 * part(c.blueF());
    };
    const double high = std::max(light(a), light(b)), low = std::min(light(a), light(b));
    return (high + 0.05) / (low + 0.05);
  };
  for (const QPalette& given : {QApplication::palette(), darkPalette()}) {
    const QPalette palette = legible(given);
    EXPECT_GT(contrast(palette.color(QPalette::Disabled, QPalette::Text),
                       palette.color(QPalette::Disabled, QPalette::Base)),
              4.5);
    EXPECT_GT(contrast(palette.color(QPalette::Text), lockedColour(palette)), 7);
    EXPECT_GT(contrast(warningColour(palette), palette.color(QPalette::Window)), 4.5);
  }
}

TEST(Captions, MarkGoesToTheLetterOfTheForm) {
  EXPECT_EQ(markedCaption("Fecha", U'F'), "&Fecha");
  EXPECT_EQ(markedCaption("Último año", U'A'), "Último &año");
  EXPECT_EQ(markedCaption("Índice", U'I'), "&Índice");
  EXPECT_EQ(markedCaption("&Folio", 0), "Folio");
  EXPECT_EQ(markedCaption("Fo&lio", U'L'), "Fo&lio");
  EXPECT_EQ(markedCaption("Padres && hijos", U'H'), "Padres && &hijos");
}

}  // namespace fidaleon::qt::RenderingTest
