# What needs no receiver: texts, versions, timestamps.
