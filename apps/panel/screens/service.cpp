// The machine builder's own screen, where there is one.
#include "screens/screens.h"

namespace panel {
namespace {

class ServiceScreen : public Screen {
  public:
    ServiceScreen(Context& context, const PanelScreen& module)
        : Screen(context), module_(module), inks_{painter().color(Ink::Desk),
                                                  painter().color(Ink::Card),
                                                  painter().color(Ink::CardEdge),
                                                  painter().color(Ink::Text),
                                                  painter().color(Ink::TextFaint),
                                                  painter().color(Ink::Good),
                                                  painter().color(Ink::Caution)} {}

    Word title() const override { return u"Service"; }

    void update() override {
        if (module_.changed() != 0) {
            redraw();
        }
    }

    void draw(const GRect&) const override {
        painter().select(Face::Text);
        module_.draw(painter().handle(), &context_.work, &inks_);
    }

    bool key(int32_t key) override { return module_.key(key) != 0; }

  private:
    const PanelScreen& module_;
    PanelInks inks_;
};

} // namespace

std::unique_ptr<Screen> makeServiceScreen(Context& context) {
    const PanelScreen* const module = context.builder.screen();
    return module != nullptr ? std::make_unique<ServiceScreen>(context, *module) : nullptr;
}

} // namespace panel
