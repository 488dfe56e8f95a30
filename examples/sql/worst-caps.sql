-- The ten caps with the greatest demand over capacity: which beam is looked at first?
SELECT v.project, p.title, v.substructure, v.dc, v.place, v.limit_state
FROM verdict AS v
JOIN projects AS p USING (project)
WHERE v.family = 'cap'
ORDER BY v.dc DESC, v.project, v.substructure
LIMIT 10;
