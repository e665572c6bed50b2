#pragma once

#include "app/story/templatebuilder.h"

namespace vl::app {

// What the built-in templates bring, one function each.

void fillNovel(TemplateBuilder &builder);
void fillSeries(TemplateBuilder &builder);
void fillScreenplay(TemplateBuilder &builder);
void fillCampaign(TemplateBuilder &builder);

} // namespace vl::app
