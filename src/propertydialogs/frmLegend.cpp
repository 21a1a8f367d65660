#include "propertydialogs/frmLegend.h"

namespace orx {

frmLegend::frmLegend(Desktop& desktop, IPageFactory& pages)
    : PageHostForm(desktop, pages,
                   {.Name = "frmLegend",
                    .Caption = "Map Annotation Properties",
                    .HelpKey = "_HelpMapLegend",
                    .Pages = {{PageKind::Legends, "Legends1", "Legends"}},
                    .Layout = {.Client = {6165, 4695},
                               .Tab = {120, 120, 5955, 3975},
                               .ButtonTop = 4200,
                               .HelpLeft = 120,
                               .OKLeft = 2040,
                               .CancelLeft = 3420,
                               .ApplyLeft = 4800}}) {
}

void frmLegend::Take(const PropertyTask& task, ErrorTrap& trap) {
  trap.Step([&] { RegisterCallBack(task.CallBack); });
  trap.Step([&] { RegisterClient(task.Client, task.RegistryKey); });
  trap.Step([&] { StartUpIndex(task.Number); });
}

}  // namespace orx
