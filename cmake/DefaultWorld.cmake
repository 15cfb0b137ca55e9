# The default world: data/ from world/.
