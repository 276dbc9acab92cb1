# The fuzz targets, one source and one folder below corpus/ each.
set(FUZZ_TARGETS Configuration Module Capacity Alarm FileCheck Inventory Lint)
