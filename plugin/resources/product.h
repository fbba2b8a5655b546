/* What the product says about itself, in its resources and to the host. The resource compiler reads
   this file too. The version is not here: it comes from the project's. */
#pragma once

#define ORVANE_COPYRIGHT "Copyright (c) 2026 The OrvaneFileIO authors"
