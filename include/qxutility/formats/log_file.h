// Diagnostic logs.
#pragma once
