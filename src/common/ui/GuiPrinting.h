// The preview window and the dialogs that installGuiDoors puts behind printing::.
#pragma once

#include "common/ui/PrintDoor.h"

namespace guiprinting
{

void preview(const printing::Document &document);
std::optional<printing::Choice> dialog(const printing::Document &document);
std::optional<printing::ListOptions> options(const printing::ListRequest &request);

} // namespace guiprinting
