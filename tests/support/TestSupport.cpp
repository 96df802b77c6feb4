// Test doubles for the core's seams; see the headers beside this file.
