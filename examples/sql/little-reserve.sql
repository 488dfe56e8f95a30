-- Bridges that pass with less than five percent in reserve: which do not take one more lane?
SELECT project, title, dc, round(100 * (1 - dc / "limit"), 1) AS reserve_percent
FROM projects
WHERE passes AND dc > 0.95 * "limit"
ORDER BY dc / "limit" DESC, project;
