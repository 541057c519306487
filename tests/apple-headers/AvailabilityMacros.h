#pragma once

// Wanted by the toolkit's headers. What appeared after the oldest system that we support is marked
// where it is declared.
